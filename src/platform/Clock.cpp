// See Clock.h.
#include "platform/Clock.h"

#include <chrono>
#include <cstdio>
#include <ctime>

namespace quillmetra {

namespace {
std::string FixedDay;

std::string Written(int year, unsigned month, unsigned day) {
    return std::to_string(month) + "/" + std::to_string(day) + "/" + std::to_string(year);
}
}  // namespace

std::string Today() {
    if (!FixedDay.empty()) return FixedDay;
    const std::time_t now = std::time(nullptr);
    const std::tm* const local = std::localtime(&now);
    return Written(local->tm_year + 1900, static_cast<unsigned>(local->tm_mon) + 1,
                   static_cast<unsigned>(local->tm_mday));
}

bool SetToday(const std::string& isoDay) {
    if (isoDay.empty()) {
        FixedDay.clear();
        return true;
    }
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    char rest = 0;
    if (std::sscanf(isoDay.c_str(), "%4d-%2u-%2u%c", &year, &month, &day, &rest) != 3) return false;
    const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                           std::chrono::day(day)};
    if (!date.ok()) return false;
    FixedDay = Written(year, month, day);
    return true;
}

}  // namespace quillmetra
