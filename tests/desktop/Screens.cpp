// Writes a picture of each window of the suite to a folder, for the guide and for whoever changes a layout:
// quillmetra-screens FOLDER
#include <cstdio>
#include <filesystem>

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

#include "core/StartUp.h"
#include "core/Suite.h"
#include "desktop/DesktopHost.h"
#include "desktop/FormWindow.h"
#include "desktop/Painting.h"
#include "forms/RegisterForms.h"
#include "platform/Forms.h"
#include "platform/TextFiles.h"
#include "platform/UserActs.h"

using namespace quillmetra;

namespace {

QString Folder;

void Settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
}

void Shoot(const char* name) {
    Settle();
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr) top = QApplication::activeWindow();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (top == nullptr && window->isVisible()) top = window;
    }
    if (top == nullptr) return;
    top->grab().save(Folder + "/" + name + ".png");
    std::printf("%s %d x %d\n", name, top->width(), top->height());
}

const char* Calculation = "";  // the form that is filled

void Type(const char* name, int index, const char* text) {
    Control& box = ControlOf(Calculation, name, index);
    MoveFocus(box);
    TypeText(box, text);
}

void Click(const char* form, const char* name, int index = Control::NoIndex) {
    ClickControl(ControlOf(form, name, index));
    Settle();
}

// The first message box is worth a picture; all are answered as Enter answers them.
void AnswerBoxes() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    static bool pictured = false;
    if (!pictured) box->grab().save(Folder + "/message.png");
    pictured = true;
    std::printf("box: %s | %s\n", qPrintable(box->windowTitle()), qPrintable(box->text().simplified()));
    box->defaultButton()->click();
}

// From the browser.
const char* Open(int program, const char* form) {
    Click("frmTRProg", "cmdOK");
    Click("frmObxProg", "optProgram", program);
    Click("frmObxProg", "cmdOK");
    return Calculation = form;
}

// A dialog runs its own loop: its picture is taken from within.
void Within(const std::function<void()>& act) { QMetaObject::invokeMethod(qApp, act, Qt::QueuedConnection); }

void FillLine() {
    const struct {
        const char* Box;
        const char* Text;
    } line[] = {{"txtTagNum", "P-101 discharge"},
                {"txtInletPipeLen", "1250"},
                {"txtInletPipeID", "6.065"},
                {"txtInletPipeElev", "12"},
                {"txtOutletPipeElev", "85"},
                {"txtPipeCond", "5"},
                {"txtInletGate", "2"},
                {"txtInlet90Deg", "6"},
                {"txtInletThru", "1"}};
    for (const auto& each : line) Type(each.Box, Control::NoIndex, each.Text);
    const char* const flows[] = {"420000", "350000", "120000"};
    for (int i = 0; i < 3; ++i) {
        Type("txtFlow", i, flows[i]);
        Type("txtTemp", i, "68");
        Type("txtPressure", i, "150");
        Type("txtSGFlow", i, "0.998");
        Type("txtViscosity", i, "1.002");
        Type("txtEquip", i, "3");
    }
}

// The liquid form, and the windows that all forms share.
void ShootLiquidLine() {
    Open(1, "frmLiqLineLoss");
    Shoot("line-empty");
    FillLine();
    Within([] {
        TypeText(ControlOf("frmPipeSize", "txtNomSize"), "6");
        Click("frmPipeSize", "cmdSearch");
        Shoot("pipe-size");
        Click("frmPipeSize", "cmdCancel");
    });
    Click("frmLiqLineLoss", "cmdPipeID");
    Click("frmLiqLineLoss", "cmdMatl");
    Shoot("line-material");
    PressKey(ControlOf("frmLiqLineLoss", "lstMatl"), "Escape");
    Click("frmLiqLineLoss", "mnuPureLiquid1");
    Shoot("line-liquids");
    Click("frmLiqLineLoss", "cmdCancel");
    for (int i = 0; i < 3; ++i) Click("frmLiqLineLoss", "cmdCalculate", i);
    Type("txtInletPipeLen", Control::NoIndex, "1300");
    MoveFocus(ControlOf("frmLiqLineLoss", "txtInletPipeID"));
    Shoot("line-changed");
    for (int i = 0; i < 3; ++i) Click("frmLiqLineLoss", "cmdCalculate", i);
    Shoot("line-results");
    Within([] {
        TypeText(ControlOf("frmObxPrintCalc", "txtTitle"), "Northfield Terminal");
        TypeText(ControlOf("frmObxPrintCalc", "txtSubTitle"), "Unit 200 line sizing");
        Shoot("printout");
        Within([] {
            Shoot("preview");
            QApplication::activeModalWidget()->close();
        });
        Click("frmObxPrintCalc", "mnuPreview");
        Click("frmObxPrintCalc", "cmdCancel");
    });
    Click("frmLiqLineLoss", "mnuPrint");
    Click("frmLiqLineLoss", "cmdFormLayout");
    Shoot("options");
    Click("frmCalcOptions", "cmdCancelOptions");
    Click("frmLiqLineLoss", "cmdUnits", 1);
    Shoot("units");
    Click("frmUnits", "cmdUnit", 3);
    Shoot("units-choose");
    Click("frmUnits", "cmdCancel");
    Click("frmUnits", "cmdUnit", 1);
    Shoot("units-basis");
    Click("frmUnits", "cmdCanBasis");
    Click("frmUnits", "cmdCancelUn");
}

void PickFluid(const std::string& name) {
    auto& list = static_cast<ListBox&>(ControlOf(Calculation, "lstFluid"));
    for (int row = 0; row < list.RowCount(); ++row) {
        if (list.Row(row).starts_with(name)) PickRow(list, row);
    }
    Click(Calculation, "cmdSelect");
}

// Methane, a mixture and the base conditions on the gas form.
void ShootGasLine() {
    const char* const form = Open(2, "frmGasLineLoss");
    Type("txtTagNum", Control::NoIndex, "FG-2301");
    Type("txtInletPipeLen", Control::NoIndex, "3200");
    Type("txtInletPipeID", Control::NoIndex, "6.065");
    for (int i = 0; i < 3; ++i) {
        Type("txtFlow", i, i == 0 ? "36000" : "24000");
        Type("txtTemp", i, "80");
        Type("txtPressure", i, "150");
        Click(form, ("mnuPureGases" + std::to_string(i + 1)).c_str());
        PickFluid("Methane ");
    }
    Shoot("gas-empty");
    for (int i = 2; i >= 0; --i) Click(form, "cmdCalculate", i);
    Shoot("gas-results");
    Click(form, "mnuSTP");
    Shoot("gas-base-conditions");
    Click(form, "cmdCancelSTP");
    Click(form, "mnuMixtures1");
    for (const char* gas : {"Methane ", "Ethane ", "Propane ", "Nitrogen "}) PickFluid(gas);
    Type("txtPercent", 0, "85");
    Type("txtPercent", 1, "10");
    Shoot("gas-mixture");
    for (int i = 4; i < 16; ++i) PickFluid("Ethylene ");
    Shoot("gas-mixture-full");
    Click(form, "cmdCancel");
}

void ShootHammer() {
    const char* const form = Open(3, "frmWaterHammer");
    Shoot("hammer-empty");
    const std::pair<const char*, const char*> line[] = {
        {"txtTagNum", "XV-204 closing"}, {"txtMaxLiqFlow", "400000"},   {"txtFlowTemp", "68"},
        {"txtOperPressure", "100"},      {"txtLineLength", "2500"},     {"txtPipeID", "6.065"},
        {"txtPipeWall", "0.28"},         {"txtMaxAllowPressure", "300"}};
    for (const auto& [box, text] : line) Type(box, Control::NoIndex, text);
    Click(form, "mnuPureLiquids");
    PickFluid("Water ");
    Click(form, "cmdPipeMatl");
    Shoot("hammer-moduli");
    Click(form, "cmdSelectModulus");
    Click(form, "cmdCalculateliq");
    Shoot("hammer-results");
    Type("txtSelectedTime", Control::NoIndex, "4");
    Click(form, "cmdCalculateliq");
    Shoot("hammer-selected");
}

// Toluene and steam in three cases.
void ShootFluidData(int program, const char* name, const char* entry, const char* fluid) {
    const char* const form = Open(program, name);
    Type("txtTagNum", Control::NoIndex, "FD-12");
    for (int i = 0; i < 3; ++i) {
        Type("txtTemp", i, std::to_string(80 + 100 * i).c_str());
        Type("txtPressure", i, "100");
        Click(form, (entry + std::to_string(i + 1)).c_str());
        PickFluid(fluid);
    }
    Shoot(form);
}

// The editor runs until it is left, so its pictures are taken from within its loop.
void ShootTable(const char* entry, int row) {
    QTimer::singleShot(0, qApp, [row] {
        PickCell(static_cast<Grid&>(ControlOf("frmTables", "grdTable")), row, 2);
        Shoot(Suite.TableKind.c_str());
        Click("frmTables", "cmdCancelGrid");
    });
    Click("frmObxProg", entry);
}

void ShootTables() {
    Click("frmTRProg", "cmdOK");
    for (const char* entry : {"mnuGasTable", "mnuLiquidTable", "mnuMaterialTable", "mnuPipeSizes"}) {
        ShootTable(entry, 12);
    }
    Click("frmObxProg", "cmdCancel");
}

void ShootLiquidData() { ShootFluidData(4, "frmLiqData", "mnuLiquid", "Toluene "); }
void ShootGasData() { ShootFluidData(5, "frmGasData", "mnuPureGases", "Methane "); }

// The finder on a folder with something to find, folded up and open.
void ShootPathFinder() {
    Within([] {
        Shoot("path-finder");
        Click("WinSeek", "cmdBrouse");
        Click("WinSeek", "cmdSearch");
        Shoot("path-finder-found");
        Click("WinSeek", "cmdExit");
        Shoot("path-finder-folded");
        Click("WinSeek", "cmdCancel");
    });
    Click("frmTRProg", "mnuPathTables");
}

void ShootHelp() {
    Click("frmTRProg", "mnuHelp");
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != "help") continue;
        Settle();
        window->grab().save(Folder + "/help.png");
        window->close();
    }
}

// A form in each of the shipped schemes.
void ShootSchemes() {
    const auto former = Suite.Colours;
    for (const char* scheme : {"High contrast", "Dark"}) {
        ReadColourFile(Suite.DefaultPaths[4] + "\\" + scheme + ".txt");
        Open(1, "frmLiqLineLoss");
        FillLine();
        Click(Calculation, "cmdCalculate", 0);
        Type("txtInletPipeLen", Control::NoIndex, "1300");
        MoveFocus(ControlOf(Calculation, "txtInletPipeID"));
        Shoot(scheme);
        Click(Calculation, "mnuSave");
        Click(Calculation, "mnuProgram");
    }
    Suite.Colours = former;
}

void ShootPrintControl() {
    Click("frmTRProg", "mnuPrinting");
    auto& tags = static_cast<ListBox&>(ControlOf("frmPrintControl", "lstTags"));
    PickRow(tags, 0);
    PickRow(tags, 2);
    static_cast<TextBox&>(ControlOf("frmPrintControl", "txtTitle")).SetText("Northfield Terminal");
    Shoot("print-control");
    auto& bar = static_cast<ProgressBar&>(ControlOf("frmPrintControl", "barProgress"));
    bar.SetVisible(true);
    bar.SetProgress(1, 2);
    Shoot("print-control-running");
    Click("frmPrintControl", "cmdCancelPrint");
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 2) return 2;
    Folder = argv[1];
    UseSuiteStyle();
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QApplication::setQuitOnLastWindowClosed(false);
    QTimer boxes;
    QObject::connect(&boxes, &QTimer::timeout, AnswerBoxes);
    boxes.start(20);
    DesktopHost host;
    RegisterForms();
    const std::string home = SuitePath(std::filesystem::temp_directory_path() / "quillmetra-screens");
    SeedShippedData(home);
    StartUp(home);
    Shoot("browser");
    Click("frmTRProg", "cmdOK");
    Shoot("selector");
    Click("frmObxProg", "cmdCancel");
    ShootHelp();
    ShootTables();
    ShootPathFinder();
    ShootSchemes();
    for (const auto& shoot : {ShootLiquidLine, ShootGasLine, ShootHammer, ShootLiquidData, ShootGasData}) {
        shoot();
        Click(Calculation, "mnuSave");
        Click(Calculation, "mnuProgram");
    }
    ShootPrintControl();
    ResetForms();
    return 0;
}
