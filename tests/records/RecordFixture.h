// A fresh database in the data folder, and records of the five programs in which every field differs.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/Programs.h"
#include "core/Words.h"
#include "records/LoadRecord.h"
#include "records/RecordExtras.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"
#include "records/RecordTransfer.h"
#include "records/RecordView.h"
#include "records/SaveRecord.h"
#include "tests/OnServer.h"
#include "tests/SuiteFixture.h"
#include "units/NamedUnitSets.h"

namespace quillmetra {

// A record in hand of a program under a named unit set, every number and text of it different from the
// others, so that a field in the wrong place shows.
inline void TakeFilledRecord(int program, int set, const std::string& tag) {
    Calc = CalcRecord();
    Calc.CurrentProgram = program;
    Calc.FluidType = FindProgram(program)->FluidType;
    Calc.StdTemperature = 68;
    Calc.StdPressure = 14.696;
    Calc.BaroPressure = 14.3;
    ApplyNamedUnitSet(set);
    Calc.Tag = tag;
    double next = 1.25;
    const auto number = [&next] { return next += 1.5; };
    for (auto& row : Calc.CaseInput) {
        for (double& value : row) value = number();
    }
    for (std::size_t row = 0; row < 6; ++row) {
        for (double& value : Calc.CaseResult[row]) value = number();
    }
    for (std::size_t i = 1; i < 6; ++i) Calc.PipeData[i] = number();
    for (std::size_t i = 1; i < 8; ++i) Calc.FittingCount[i] = 100 + static_cast<double>(i);
    for (std::size_t i = 1; i < 19; ++i) Calc.HammerResult[i] = number();
    int text = 0;
    const auto word = [&text](const char* kind) { return kind + std::to_string(++text); };
    for (std::size_t i = 6; i <= 10; ++i) Calc.HeadingText[i] = word("heading ");
    Calc.CaseText[8] = word("by ");
    Calc.CaseText[9] = word("app ");
    Calc.CaseText[10] = "11/24/2026";
    Calc.CaseText[11] = "03/02/2025";
    Calc.ProgramTitle = word("title ");
    Calc.FluidName = word("fluid ");
    Calc.PipeMaterial = word("pipe ");
    Calc.PipeName = word("6 in sch ");
    Calc.Service = word("service ");
    Calc.PipeMaterialNumber = 3;
    Calc.PipeFouling = 33.3;
    Calc.PressureDirection = 2;
    Calc.CalcMode = words::PressureDrop;
    Calc.DataMode = words::DensityData;
    Calc.PressureMode = words::Absolute;
    Calc.FluidDataSource = words::Loaded;
}

// A mixture of sixteen components, whose rows are made long by a letter.
inline void TakeMixture(const std::string& tag, const std::string& letter = " ") {
    TakeFilledRecord(2, 1, tag);
    Calc.MixtureFlag = words::Yes;
    for (std::size_t i = 0; i < 16; ++i) {
        Calc.FluidPercent[i] = 6.25;
        Calc.FluidData[i] = "Fluid " + std::to_string(i) + "  ,  ";
        for (int k = 0; k < 80; ++k) Calc.FluidData[i] += letter;
        Calc.FluidData[i] += "1.5 , 2,";
    }
}

class RecordTest : public SuiteTest {
protected:
    RecordTest() {
        Suite.DatabasePath = SuitePath(DataFolder());
        if (OnServer()) {
            Suite.DatabaseFile = DatabaseFileOf(Suite.DatabasePath);
            MakeServerDatabase(Suite.DatabaseFile, NewServerLink());
        } else {
            CreateDB(true);
        }
        User.Boxes.clear();
    }

    std::filesystem::path File() const { return DataFolder() / "TRDB.MDB"; }

    void SaveNew(const std::string& tag, int program = 1) {
        TakeFilledRecord(program, 1, tag);
        ASSERT_TRUE(SaveTRCalc()) << User.LastText();
    }

    // What a browser does before it shows a record.
    bool Display(std::string tag) {
        RecordView view(Suite.DatabaseFile);
        ResetRecord();
        if (view.Find(tag)) TakeFluidType(view.Head().FluidType, view.Head().ProgramNumber);
        Calc.Tag = tag;
        return GetTRCalc();
    }

    // Whether a table has the tag.
    bool HasRow(const RecordTable& table, const std::string& tag) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset rows(*database, table.Shape);
        rows.Index("Tag_Number");
        return rows.Seek(tag);
    }

    // The name of the pipe as it is stored, with its figures.
    std::string PipeOnFile(const std::string& tag) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        return NamedValues(*database, ExtrasTable()).Value(tag, "Pipe");
    }

    // As a program writes it that knows of no extras.
    void WriteField(const RecordTable& table, const std::string& tag, const char* field, double value) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset rows(*database, table.Shape);
        rows.Index("Tag_Number");
        ASSERT_TRUE(rows.Seek(tag));
        rows.Edit();
        rows.Set(field, value);
        rows.Update();
    }

    std::string RowsWith(const std::string& tag) {
        std::string names;
        for (const RecordTable* table : RecordTables()) {
            if (HasRow(*table, tag)) names += table->Shape.Name + ";";
        }
        return names;
    }

    // All values of the tag's rows.
    std::vector<FieldValue> AllValues(const std::string& tag) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        std::vector<FieldValue> values;
        for (const RecordTable* table : RecordTables()) {
            Recordset rows(*database, table->Shape);
            rows.Index("Tag_Number");
            if (!rows.Seek(tag)) continue;
            for (std::size_t i = 0; i < table->Fields.size(); ++i) values.push_back(rows.Value(i));
        }
        return values;
    }
};

}  // namespace quillmetra
