// See ServerLink.h.
#include "platform/ServerLink.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>

#include "platform/Database.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Mark = "Quillmetra database link";
constexpr std::string_view FirstLine = "Quillmetra database link 1";
constexpr std::size_t LongestValue = 200, LongestSchema = 60, LongestFile = 4096;

struct LinkLine {
    std::string_view Name;
    std::string ServerLink::*Value;
};
constexpr std::array Lines = {
    LinkLine{"host", &ServerLink::Host},       LinkLine{"port", &ServerLink::Port},
    LinkLine{"dbname", &ServerLink::Database}, LinkLine{"user", &ServerLink::User},
    LinkLine{"service", &ServerLink::Service}, LinkLine{"schema", &ServerLink::Schema}};

RuntimeError Refused(const std::string& reason) {
    return {failure::DatabaseInvalid().Number, "The link to the server cannot be followed\n" + reason};
}

bool HasControl(std::string_view text) {
    return std::ranges::any_of(text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; });
}

std::string StartOf(const fs::path& file, std::size_t length) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) return {};
    std::string start(length, '\0');
    std::ifstream stream(file, std::ios::binary);
    stream.read(start.data(), static_cast<std::streamsize>(length));
    start.resize(static_cast<std::size_t>(stream.gcount()));
    return start;
}

void TakeLine(ServerLink& link, std::string_view line) {
    const std::size_t sign = line.find('=');
    const std::string_view name = Trim(line.substr(0, sign));
    if (SameName(name, "password") || SameName(name, "passfile")) {
        throw Refused("A link holds no password; the password file of PostgreSQL serves for that");
    }
    for (const LinkLine& each : Lines) {
        if (sign == std::string_view::npos || name != each.Name) continue;
        link.*each.Value = Trim(line.substr(sign + 1));
        return;
    }
    throw Refused("It has a line that is not understood: " + std::string(line.substr(0, LongestValue)));
}

}  // namespace

std::string ServerLink::Words() const {
    const std::string place = Service.empty() ? Host : "service " + Service;
    return place + (Port.empty() ? "" : ":" + Port) + (Database.empty() ? "" : ", database " + Database) +
           ", schema " + Schema;
}

bool IsServerLink(const fs::path& file) { return StartOf(file, Mark.size()) == Mark; }

ServerLink ReadServerLink(const fs::path& file) {
    const std::string text = StartOf(file, LongestFile + 1);
    if (text.size() > LongestFile) throw Refused("It is too long");
    ServerLink link;
    bool isFirst = true;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string_view line = std::string_view(text).substr(at, end - at);
        at = end + 1;
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (isFirst && Trim(line) != FirstLine) throw failure::DatabaseNewer();
        if (!isFirst && !Trim(line).empty()) TakeLine(link, line);
        isFirst = false;
    }
    if (link.Schema.empty()) link.Schema = UsualSchema;
    if (const std::string fault = FaultOfLink(link); !fault.empty()) throw Refused(fault);
    return link;
}

void WriteServerLink(const fs::path& file, const ServerLink& link) {
    std::string text(FirstLine);
    text += "\r\n";
    for (const LinkLine& each : Lines) {
        if (const std::string& value = link.*each.Value; !value.empty())
            text += std::string(each.Name) + "=" + value + "\r\n";
    }
    ReplaceFile(SuitePath(file), text);
}

std::string FaultOfLink(const ServerLink& link) {
    for (const LinkLine& each : Lines) {
        const std::string& value = link.*each.Value;
        if (HasControl(value) || value.size() > LongestValue)
            return "Its " + std::string(each.Name) + " is no name";
    }
    if (link.Host.empty() && link.Service.empty()) return "It names neither a host nor a service";
    int port = 1;
    const char* const end = link.Port.data() + link.Port.size();
    const auto read = std::from_chars(link.Port.data(), end, port);
    const bool isPort = link.Port.empty() || (read.ec == std::errc() && read.ptr == end);
    if (!isPort || port < 1 || port > 65535) return "Its port is no number from 1 to 65535";
    if (link.Schema.empty() || link.Schema.size() > LongestSchema) return "It names no schema";
    return "";
}

}  // namespace quillmetra
