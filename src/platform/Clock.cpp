// See Clock.h.
#include "platform/Clock.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <optional>

namespace quillmetra {

namespace {
std::string FixedDay;

// Two digits at least.
std::string Padded(unsigned number) {
    std::string text = std::to_string(number);
    if (text.size() < 2) text.insert(0, 1, '0');
    return text;
}

std::string Written(int year, unsigned month, unsigned day) {
    return Padded(month) + "/" + Padded(day) + "/" + std::to_string(year);
}

struct Day {
    int Year = 0;
    unsigned Month = 0, Day = 0;

    bool IsDay() const {
        using namespace std::chrono;
        return Year >= 1000 && Year <= 9999 && year_month_day(year(Year), month(Month), day(Day)).ok();
    }
};

// std::localtime keeps its answer where any thread may write over it.
std::tm LocalTime(std::time_t time) {
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &time);
#else
    localtime_r(&time, &local);
#endif
    return local;
}

// Whole texts alone: nothing may follow the day.
std::optional<Day> ParseIso(const std::string& text) {
    Day day;
    char rest = 0;
    if (std::sscanf(text.c_str(), "%4d-%2u-%2u%c", &day.Year, &day.Month, &day.Day, &rest) != 3) return {};
    if (!day.IsDay()) return {};
    return day;
}

std::optional<Day> ParseMonthFirst(const std::string& text) {
    Day day;
    char rest = 0;
    if (std::sscanf(text.c_str(), "%2u/%2u/%4d%c", &day.Month, &day.Day, &day.Year, &rest) != 3) return {};
    if (text.size() - text.rfind('/') == 3) day.Year += day.Year < 30 ? 2000 : 1900;
    if (!day.IsDay()) return {};
    return day;
}
}  // namespace

std::string Today() {
    if (!FixedDay.empty()) return FixedDay;
    const std::tm local = LocalTime(std::time(nullptr));
    return Written(local.tm_year + 1900, static_cast<unsigned>(local.tm_mon) + 1,
                   static_cast<unsigned>(local.tm_mday));
}

bool SetToday(const std::string& isoDay) {
    if (isoDay.empty()) {
        FixedDay.clear();
        return true;
    }
    const std::optional<Day> day = ParseIso(isoDay);
    if (!day) return false;
    FixedDay = Written(day->Year, day->Month, day->Day);
    return true;
}

std::string DateText(const std::string& isoDay) {
    const std::optional<Day> day = ParseIso(isoDay);
    return day ? Written(day->Year, day->Month, day->Day) : "";
}

std::string IsoDate(const std::string& text) {
    std::optional<Day> day = ParseIso(text);
    if (!day) day = ParseMonthFirst(text);
    if (!day) return "";
    return std::to_string(day->Year) + "-" + Padded(day->Month) + "-" + Padded(day->Day);
}

}  // namespace quillmetra
