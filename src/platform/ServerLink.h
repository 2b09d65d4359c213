// A small file in the place of a database that tells on which server its records are: a first line that says
// so, then a line each of "host=", "port=", "dbname=", "user=", "service=" and "schema=". A password has no
// place in it: the engine's own files of passwords and services serve for that.
#pragma once

#include <filesystem>
#include <string>

#include "platform/RuntimeError.h"

namespace quillmetra {

struct ServerLink {
    std::string Host, Port, Database, User, Service, Schema;

    bool operator==(const ServerLink&) const = default;
    // For messages: "records.office, database plant, schema quillmetra".
    std::string Words() const;
};

inline constexpr const char* UsualSchema = "quillmetra";

// Whether this build has the library that reaches servers.
bool KnowsServers();

// Whether a file begins as a link, whatever follows.
bool IsServerLink(const std::filesystem::path& file);

// Throws, naming the line, for a link that cannot be followed.
ServerLink ReadServerLink(const std::filesystem::path& file);
void WriteServerLink(const std::filesystem::path& file, const ServerLink& link);

// What a link cannot say, in words for the user; empty when it is complete.
std::string FaultOfLink(const ServerLink& link);

namespace failure {
// What only a file can be asked for.
inline RuntimeError OnServer() {
    return {3346,
            "The records of this database are on a server: whoever looks after the server compacts, "
            "repairs and backs up"};
}
}  // namespace failure

}  // namespace quillmetra
