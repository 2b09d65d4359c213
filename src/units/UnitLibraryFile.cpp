// See UnitLibraryFile.h.
#include "units/UnitLibraryFile.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "core/FileNames.h"
#include "core/Suite.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {

namespace {

using Library = decltype(Suite.UnitLibrary);

std::string FileName() { return InDefaultPath(path::DataFiles, filename::UnitLibrary); }

Library ReadFile() {
    LineReader file(FileName());
    Library library;
    for (UnitList& list : library) {
        for (std::size_t line = 1; line < list.size(); ++line) {
            list[line].Name = FirstCharacters(file.NextWhole(), LongestUnitName);
            const double factor = Val(file.NextWhole());
            list[line].Factor = IsUsableFactor(factor) ? factor : 0;
        }
    }
    return library;
}

void RebuildPressureStems() {
    for (std::size_t line = 1; line < Suite.PressureStem.size(); ++line) {
        const UnitLine& unit = Suite.UnitLibrary[unitlist::OperatingPressure][line];
        const std::string stem = WithoutLastCharacter(unit.Name);
        Suite.PressureStem[line] = stem.empty() ? UnitLine{} : UnitLine{stem, unit.Factor};
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

void PrepareUnitLibrary() {
    if (Suite.UnitLibraryName.empty()) ReadUnitLibrary();
    ApplyPressureSuffix();
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
