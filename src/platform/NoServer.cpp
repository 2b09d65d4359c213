// In the place of the engine of servers where this build has no library for it.
#include "platform/ServerEngine.h"

namespace quillmetra {

namespace {

RuntimeError KnowsNone() {
    return {3347, "The records are on a server, and this build of the program knows no server"};
}

}  // namespace

bool KnowsServers() { return false; }

std::unique_ptr<Engine> OpenOnServer(const std::filesystem::path& file, const DatabaseKind&) {
    ReadServerLink(file);
    throw KnowsNone();
}

void CreateOnServer(const ServerLink&, const DatabaseKind&, const std::vector<TableShape>&) {
    throw KnowsNone();
}

}  // namespace quillmetra
