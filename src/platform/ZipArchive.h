// The parts of a ZIP archive in memory. Their sizes are added up from its directory before anything is
// unpacked, so that a small file cannot fill the machine. Failures are those of SheetReader.h.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace quillmetra::sheets {

class ZipArchive {
public:
    explicit ZipArchive(std::string_view bytes);  // which must outlive it
    ~ZipArchive();
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;

    // Names of parts count without regard to case.
    bool Has(const std::string& part) const;
    // Goes to the first byte of a part, which must be there.
    void Open(const std::string& part);
    // The next bytes of it; 0 at its end, which the archive's checksum has proved.
    std::size_t Read(char* buffer, std::size_t size);

private:
    struct Engine;
    std::unique_ptr<Engine> engine_;
};

}  // namespace quillmetra::sheets
