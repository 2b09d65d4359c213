// See UnitLibraryFile.h.
#include "units/UnitLibraryFile.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "core/Suite.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {

namespace {

using Library = decltype(Suite.UnitLibrary);

constexpr std::size_t LongestName = 8;  // characters, as the database holds them

std::string FileName() { return Suite.DefaultPaths[4] + "\\TRLib.TXT"; }

// The first characters of a UTF-8 text.
std::string Left(const std::string& text, std::size_t count) {
    std::size_t end = 0;
    while (end < text.size()) {
        const bool starts = (static_cast<unsigned char>(text[end]) & 0xC0U) != 0x80U;
        if (starts && count-- == 0) break;
        ++end;
    }
    return text.substr(0, end);
}

Library ReadFile() {
    LineReader file(FileName());
    Library library;
    for (UnitList& list : library) {
        for (std::size_t line = 1; line < list.size(); ++line) {
            list[line].Name = Left(file.NextWhole(), LongestName);
            const double factor = Val(file.NextWhole());
            list[line].Factor = IsUsableFactor(factor) ? factor : 0;
        }
    }
    return library;
}

void RebuildPressureStems() {
    for (std::size_t line = 1; line < Suite.PressureStem.size(); ++line) {
        const UnitLine& unit = Suite.UnitLibrary[5][line];
        const bool hasStem = unit.Name.size() > 1;
        Suite.PressureStem[line] =
            hasStem ? UnitLine{unit.Name.substr(0, unit.Name.size() - 1), unit.Factor} : UnitLine{};
    }
}

}  // namespace

bool ReadUnitLibrary() {
    try {
        Suite.UnitLibrary = ReadFile();
        RebuildPressureStems();
        Suite.UnitLibraryName = UserLibraryName;
        return true;
    } catch (const RuntimeError&) {
        UseDefaultLibrary();
        return false;
    }
}

bool WriteUnitLibrary() {
    if (Suite.UnitLibraryName.empty()) ReadUnitLibrary();
    try {
        TextWriter file(FileName());
        for (const UnitList& list : Suite.UnitLibrary) {
            for (std::size_t line = 1; line < list.size(); ++line) {
                file.Line(list[line].Name);
                list[line].Name.empty() ? file.Line("") : file.Number(list[line].Factor);
            }
        }
        file.Commit();
    } catch (const RuntimeError&) {
        return false;
    }
    Suite.UnitLibraryName = UserLibraryName;
    return true;
}

bool DeleteUnitLibraryFile() {
    std::error_code error;
    std::filesystem::remove(MachinePath(FileName()), error);
    if (error) return false;
    UseDefaultLibrary();
    return true;
}

void UseDefaultLibrary() {
    ClearUnitLibrary();
    LoadDefaultUnits();
    Suite.UnitLibraryName = DefaultLibraryName;
}

}  // namespace quillmetra
