// The one parameter of all tests that work with a database: with QUILLMETRA_TEST_SERVER in the environment it
// is on the server that libpq's own variables name, each time in a schema of its own.
#pragma once

#include <cstdlib>
#include <random>
#include <string>

#include "platform/ServerLink.h"

namespace quillmetra {

inline bool OnServer() { return std::getenv("QUILLMETRA_TEST_SERVER") != nullptr; }

inline ServerLink NewServerLink() {
    static const std::string ofProcess = "test_" + std::to_string(std::random_device()());
    static int count = 0;
    const char* const host = std::getenv("PGHOST");
    return {.Host = host == nullptr ? "localhost" : host,
            .Schema = ofProcess + "_" + std::to_string(++count)};
}

}  // namespace quillmetra
