// The fixture of every test that touches the record: fresh aggregates, fresh forms, a folder of its own with
// the shipped tables, and a host that records what the user would see.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "platform/Clock.h"
#include "platform/Forms.h"
#include "platform/TemporaryFolder.h"
#include "platform/TextFiles.h"
#include "tests/FakeHost.h"

namespace quillmetra {

// The source tree, for tests that read checked-in data: that of the build, or the one that the variable
// names.
std::filesystem::path SourceFolder();

class SuiteTest : public ::testing::Test {
protected:
    SuiteTest() {
        ForgetForms();
        Calc = CalcRecord();
        Suite = SuiteState();
        Printer = RecordingPrinter();
        std::copy(DefaultColours.begin(), DefaultColours.end(), Suite.Colours.begin() + 1);

        std::filesystem::create_directory(DataFolder());
        for (const char* name :
             {"Liquid.txt", "Gas.txt", "W-PIPE.TXT", "Modulus.txt", "MaTLDAT.TXT", "Criteria.txt"}) {
            std::filesystem::copy_file(SourceFolder() / "data" / name, DataFolder() / name);
        }
        for (const char* name : {"STEAM.txt", "Stm07.Dat"}) {
            std::filesystem::copy_file(SourceFolder() / "data" / name, Folder / name);
        }
        Suite.DefaultPaths.fill(SuitePath(DataFolder()));
        Suite.DefaultPaths[5] = SuitePath(Folder);
    }

    ~SuiteTest() override {
        ForgetForms();
        SetToday("");
    }

    // Where the data files of this test lie; Folder is the program's own.
    std::filesystem::path DataFolder() const { return Folder / "TRData"; }

    // Replaces a data file of this test, bytes as they are.
    void WriteData(const std::string& name, std::string_view bytes) const {
        std::ofstream(DataFolder() / name, std::ios::binary) << bytes;
    }

    // Cuts a data file behind its first bytes. Quicker by far than writing it anew: a file system may put
    // a file that was overwritten on the disk at once.
    void CutData(const std::string& name, std::size_t length) const {
        std::filesystem::resize_file(DataFolder() / name, length);
    }

private:
    const TemporaryFolder own_;

protected:
    const std::filesystem::path Folder = own_.Path();
    FakeHost User;
};

}  // namespace quillmetra
