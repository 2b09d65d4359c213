// See ZipArchive.h.
#include "platform/ZipArchive.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include <minizip/unzip.h>

#include "platform/SheetFormats.h"
#include "platform/TextCase.h"

namespace quillmetra::sheets {

namespace {

constexpr std::uint64_t MostUnpacked = 256U << 20U;
constexpr int MostParts = 10000;

RuntimeError Damaged() { return Refused("The workbook is damaged"); }

// The archive's bytes as the engine asks for them.
struct Memory {
    std::string_view Bytes;
    std::uint64_t Next = 0;
};

voidpf OpenMemory(voidpf memory, const void*, int) { return memory; }
uLong ReadMemory(voidpf, voidpf stream, void* buffer, uLong size) {
    Memory& memory = *static_cast<Memory*>(stream);
    if (memory.Next >= memory.Bytes.size()) return 0;
    const std::size_t count = std::min<std::size_t>(size, memory.Bytes.size() - memory.Next);
    std::memcpy(buffer, memory.Bytes.data() + memory.Next, count);
    memory.Next += count;
    return static_cast<uLong>(count);
}
uLong WriteNothing(voidpf, voidpf, const void*, uLong) { return 0; }
ZPOS64_T TellMemory(voidpf, voidpf stream) { return static_cast<Memory*>(stream)->Next; }
long SeekMemory(voidpf, voidpf stream, ZPOS64_T offset, int origin) {
    Memory& memory = *static_cast<Memory*>(stream);
    const std::uint64_t from = origin == ZLIB_FILEFUNC_SEEK_SET   ? 0
                               : origin == ZLIB_FILEFUNC_SEEK_CUR ? memory.Next
                                                                  : memory.Bytes.size();
    if (from + offset > memory.Bytes.size() || from + offset < from) return -1;
    memory.Next = from + offset;
    return 0;
}
int CloseMemory(voidpf, voidpf) { return 0; }
int NoError(voidpf, voidpf) { return 0; }

}  // namespace

struct ZipArchive::Engine {
    Memory Source;
    unzFile File = nullptr;
    std::map<std::string, unz64_file_pos> Parts;
    bool InPart = false;
    std::uint64_t Unpacked = 0;  // also of parts that are read more than once

    explicit Engine(std::string_view bytes) : Source{bytes} {
        zlib_filefunc64_def calls = {OpenMemory, ReadMemory,  WriteNothing, TellMemory,
                                     SeekMemory, CloseMemory, NoError,      &Source};
        File = unzOpen2_64("", &calls);
    }
    ~Engine() {
        if (File != nullptr) unzClose(File);
    }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    void ReadDirectory() {
        std::uint64_t sum = 0;
        int state = unzGoToFirstFile(File);
        for (; state == UNZ_OK; state = unzGoToNextFile(File)) {
            std::array<char, 260> name{};
            unz_file_info64 info{};
            unz64_file_pos place{};
            if (unzGetCurrentFileInfo64(File, &info, name.data(), name.size() - 1, nullptr, 0, nullptr, 0) !=
                    UNZ_OK ||
                unzGetFilePos64(File, &place) != UNZ_OK)
                throw Damaged();
            if (info.uncompressed_size > MostUnpacked - sum)
                throw Refused("The workbook would unpack to more than 256 MB: save it as CSV");
            sum += info.uncompressed_size;
            if (Parts.size() == MostParts) throw Refused("The workbook has more than 10000 parts");
            if ((info.flag & 1U) != 0) throw Refused("The workbook has a password");
            std::string part = LowerCase(std::string(name.data()));
            std::ranges::replace(part, '\\', '/');  // as some programs write them
            Parts.emplace(std::move(part), place);
        }
        if (state != UNZ_END_OF_LIST_OF_FILE) throw Damaged();
    }
};

ZipArchive::ZipArchive(std::string_view bytes) : engine_(std::make_unique<Engine>(bytes)) {
    if (engine_->File == nullptr) throw Damaged();
    engine_->ReadDirectory();
}

ZipArchive::~ZipArchive() = default;

bool ZipArchive::Has(const std::string& part) const { return engine_->Parts.contains(LowerCase(part)); }

void ZipArchive::Open(const std::string& part) {
    if (engine_->InPart) unzCloseCurrentFile(engine_->File);
    engine_->InPart = false;
    const auto found = engine_->Parts.find(LowerCase(part));
    if (found == engine_->Parts.end()) throw Refused("The workbook has no part " + part);
    if (unzGoToFilePos64(engine_->File, &found->second) != UNZ_OK ||
        unzOpenCurrentFile(engine_->File) != UNZ_OK)
        throw Damaged();
    engine_->InPart = true;
}

std::size_t ZipArchive::Read(char* buffer, std::size_t size) {
    const int count = unzReadCurrentFile(engine_->File, buffer, static_cast<unsigned>(size));
    if (count < 0) throw Damaged();
    engine_->Unpacked += static_cast<std::uint64_t>(count);
    if (engine_->Unpacked > 2 * MostUnpacked) throw Refused("The workbook unpacks to more than 256 MB");
    if (count == 0) {
        engine_->InPart = false;
        if (unzCloseCurrentFile(engine_->File) != UNZ_OK) throw Damaged();
    }
    return static_cast<std::size_t>(count);
}

}  // namespace quillmetra::sheets
