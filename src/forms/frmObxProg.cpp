// See frmObxProg.h.
#include "forms/frmObxProg.h"

#include "core/CalcRecord.h"
#include "core/PipeFamilies.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "forms/frmTables.h"
#include "forms/LoadDefaults.h"
#include "forms/RegisterForms.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/PathText.h"
#include "reports/FormRefresh.h"
#include "tables/PipeSizes.h"

namespace quillmetra {

namespace {
constexpr int SelectorHelpTopic = 410;
}

frmObxProg::frmObxProg() : SuiteForm("frmObxProg") {
    Fixed = true;
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;
    mnuHelp.Shortcut = keys::Help;
    const std::pair<MenuItem*, const TableDescription*> tables[] = {{&mnuGasTable, &table::Gas},
                                                                    {&mnuLiquidTable, &table::Liquid},
                                                                    {&mnuMaterialTable, &table::Material},
                                                                    {&mnuPipeSizes, &table::Pipe},
                                                                    {&mnuCriteria, &table::Criteria}};
    for (const auto& [entry, table] : tables) {
        entry->Click = [keyWord = table->KeyWord] { EditTable(keyWord); };
    }
    static_assert(PipeFamilies.size() == 10, "an entry for each family but the first");
    mnuPipeFamily.Each([](MenuItem& entry, int index) {
        const PipeFamily& family = PipeFamilies[static_cast<std::size_t>(index)];
        entry.SetCaption(std::string{'&', static_cast<char>('0' + index), ' ', ' '} + family.Name);
        entry.Click = [file = family.File] { EditTable(table::PipeFamily.KeyWord, {.FileName = file}); };
    });
    mnuOwnPipe(1).SeparatorBefore = true;
    mnuShippedRows.SeparatorBefore = true;
    mnuShippedRows.Click = [] { ShowForm("frmShippedRows", Modal::Yes); };
    fraProgram.ColourGroup = 1;
    for (const Program& program : Programs) {
        OptionButton& option = optProgram(program.Number);
        option.SetCaption(program.Title);
        option.ColourGroup = 1;
        option.SetEnabled(IsFormKnown(program.Form));
        option.DoubleClick = [this] { cmdOK_Click(); };
    }
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    mnuExit.Click = [this] { mnuExit_Click(); };
    mnuHelp.Click = [] { ShowHelpTopic(SelectorHelpTopic); };
}

void frmObxProg::Load() {
    ApplyColours(*this);
    ShowOwnPipes();
    if (!IsYes(Calc.InCalculation)) {
        ResetRecord();
        LoadDefaults();
        Calc.HeadingText[heading::Note1].clear();
        Calc.HeadingText[heading::Note2].clear();
    }
    if (Calc.CurrentProgram == 0) Calc.CurrentProgram = program::LiquidLine;
    SetCaption(Suite.VersionText + "New Calculation");
    optProgram(Calc.CurrentProgram).SetChecked(true);
}

void frmObxProg::ShowOwnPipes() {
    std::vector<PipeFile> files = PipeFiles();
    std::erase_if(files, [](const PipeFile& each) { return each.Name != each.File; });
    mnuOwnPipe.Each([&files](MenuItem& entry, int number) {
        const auto place = static_cast<std::size_t>(number - 1);
        const std::string file = place < files.size() ? files[place].File : "";
        entry.SetVisible(!file.empty());
        entry.SetCaption(std::string{'&', static_cast<char>('A' + place), ' ', ' '} + CaptionOfFile(file));
        entry.Click = [file] { EditTable(table::PipeFamily.KeyWord, {.FileName = file}); };
    });
}

void frmObxProg::cmdOK_Click() {
    const BusyPointer busy;
    for (const Program& program : Programs) {
        if (!optProgram(program.Number).Checked()) continue;
        Calc.CurrentProgram = program.Number;
        Calc.FluidType = program.FluidType;
    }
    // A report of another program may have loaded the form hidden.
    if (const Program* program = FindProgram(Calc.CurrentProgram)) UnloadForm(program->Form);
    ShowCalculation();
    OpenProgram();
}

void frmObxProg::OpenProgram() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    if (program == nullptr) return;
    ShowForm(program->Form);
    HideForm(Name());
}

void frmObxProg::cmdCancel_Click() {
    ShowForm("frmTRProg");
    UnloadForm(Name());
}

void frmObxProg::mnuExit_Click() { EndProcess(); }

}  // namespace quillmetra
