// The engine of databases on a server, in a build that has its library.
#pragma once

#include <memory>

#include "platform/Engine.h"
#include "platform/ServerLink.h"

namespace quillmetra {

// Follows a link. Without the library both throw.
std::unique_ptr<Engine> OpenOnServer(const std::filesystem::path& file, const DatabaseKind& kind);
void CreateOnServer(const ServerLink& link, const DatabaseKind& kind, const std::vector<TableShape>& tables);

}  // namespace quillmetra
