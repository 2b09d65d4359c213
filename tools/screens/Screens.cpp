// Writes a picture of each window of the suite to a folder, filled with the worked examples, for the guide
// and for whoever changes a layout: quillmetra-screens FOLDER [SCHEME]
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include <QApplication>
#include <QContextMenuEvent>
#include <QImage>
#include <QMainWindow>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

#include "core/StartUp.h"
#include "core/Suite.h"
#include "desktop/DesktopHost.h"
#include "desktop/FormWindow.h"
#include "desktop/Painting.h"
#include "forms/ColourSchemes.h"
#include "forms/frmImport.h"
#include "forms/RegisterForms.h"
#include "platform/DropButton.h"
#include "platform/Forms.h"
#include "platform/TextFiles.h"
#include "platform/UserActs.h"

using namespace quillmetra;

namespace {

QString Folder;

void Settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
}

// Each part of a colour to the nearest multiple of a step; white stays white.
QImage WithFewerColours(QImage picture, int step) {
    const auto nearest = [step](int part) { return std::min((part + step / 2) / step * step, 255); };
    for (int y = 0; y < picture.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            line[x] = qRgb(nearest(qRed(line[x])), nearest(qGreen(line[x])), nearest(qBlue(line[x])));
        }
    }
    return picture;
}

// The colours of a picture; empty when a palette cannot hold them.
QList<QRgb> PaletteOf(const QImage& picture) {
    QList<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (colours.contains(line[x])) continue;
            if (colours.size() == 256) return {};
            colours.append(line[x]);
        }
    }
    return colours;
}

// A quarter of the file by a palette, for which the soft edges of the letters lose some of their shades.
void SavePicture(QWidget& window, const char* name) {
    QPixmap whole = window.grab();
    // A menu is a window of its own.
    if (QWidget* const menu = QApplication::activePopupWidget()) {
        QPainter(&whole).drawPixmap(window.mapFromGlobal(menu->pos()), menu->grab());
    }
    const QImage grabbed = whole.toImage().convertToFormat(QImage::Format_RGB32);
    QImage picture = grabbed;
    for (const int step : {1, 4, 8, 16}) {
        picture = WithFewerColours(grabbed, step);
        const QList<QRgb> palette = PaletteOf(picture);
        if (palette.isEmpty()) continue;
        picture = picture.convertToFormat(QImage::Format_Indexed8, palette);
        break;
    }
    constexpr int smallest = 0;
    picture.save(Folder + "/" + name + ".png", nullptr, smallest);
}

QWidget* TopWindow() {
    QWidget* top = QApplication::activeModalWidget();
    if (top == nullptr) top = QApplication::activeWindow();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (top == nullptr && window->isVisible()) top = window;
    }
    return top;
}

void Shoot(const char* name) {
    Settle();
    QWidget* const top = TopWindow();
    if (top == nullptr) return;
    SavePicture(*top, name);
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

void DropList(const char* name, int index = Control::NoIndex) {
    auto* const button =
        TopWindow()->findChild<QWidget*>(ToQt(ControlOf(Calculation, name, index).FullName()));
    QContextMenuEvent right(QContextMenuEvent::Mouse, {}, button->mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(button, &right);
    Settle();
}

// The first message box is worth a picture; all are answered as Enter answers them.
void AnswerBoxes() {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    static bool pictured = false;
    if (!pictured) SavePicture(*box, "message");
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

void TypeAll(std::initializer_list<std::pair<const char*, const char*>> texts) {
    for (const auto& [box, text] : texts) Type(box, Control::NoIndex, text);
}

// The first row that starts with a text.
void PickFrom(const char* form, const char* name, std::string_view start) {
    auto& list = static_cast<ListBox&>(ControlOf(form, name));
    int row = 0;
    while (row < list.RowCount() - 1 && !list.Row(row).starts_with(start)) ++row;
    PickRow(list, row);
}

void PickFluid(const char* name) {
    PickFrom(Calculation, "lstFluid", name);
    Click(Calculation, "cmdSelect");
}

std::string Entry(const char* stem, int index) { return stem + std::to_string(index + 1); }

// The dialog with the table of pipe sizes.
void PickPipe(const char* size, const char* row, const char* picture) {
    Within([=] {
        TypeText(ControlOf("frmPipeSize", "txtNomSize"), size);
        Click("frmPipeSize", "cmdSearch");
        PickFrom("frmPipeSize", "lstPipeSize", row);
        if (picture != nullptr) Shoot(picture);
        Click("frmPipeSize", "cmdOK");
    });
    Click(Calculation, "cmdPipeID");
}

// The dialog of the fluid, left as it came. What is looked for may be empty.
void ShootFluid(const char* picture, const char* typed) {
    Within([=] {
        TypeText(ControlOf("frmFluid", "txtFilter"), typed);
        Shoot(picture);
        Click("frmFluid", "cmdCancel");
    });
    Click(Calculation, "cmdFluid");
}

// examples/liquid-line.qs
void FillLine(const char* pipePicture = nullptr) {
    TypeAll({{"txtTagNum", "CW-101"},
             {"txtInletPipeLen", "1000"},
             {"txtOutletPipeElev", "20"},
             {"txtInletGate", "2"},
             {"txtInletCheck", "1"},
             {"txtInlet90Deg", "6"}});
    PickPipe("4", "  4,40S", pipePicture);
    const char* const flows[] = {"150000", "100000", "40000"};
    for (int i = 0; i < 3; ++i) {
        Type("txtTemp", i, "60");
        Type("txtPressure", i, "100");
        Click(Calculation, Entry("mnuPureLiquid", i).c_str());
        PickFluid("Water ");
        Type("txtFlow", i, flows[i]);
    }
    TypeAll({{"txtBy", "Process"}});
    Type("txtComments", 0, "Cooling water supply, sheet 4.");
}

// The dialogs that try a line; schedule and service are rows of their lists.
void ShootTrials(int schedule, int service, const char* sizes, const char* flow) {
    Within([=] {
        Click("frmSizes", "optCase", 0);
        PickRow(static_cast<ListBox&>(ControlOf("frmSizes", "lstSchedule")), schedule);
        PickRow(static_cast<ListBox&>(ControlOf("frmSizes", "lstService")), service);
        Shoot(sizes);
        Click("frmSizes", "cmdCancel");
    });
    Click(Calculation, "cmdSizes");
    Within([=] {
        TypeText(ControlOf("frmLineFlow", "txtEnd"), "60");
        Click("frmLineFlow", "cmdFind");
        Shoot(flow);
        Click("frmLineFlow", "cmdCancel");
    });
    Click(Calculation, "cmdFlowFor");
}

// The liquid form, and the windows that all forms share.
void ShootLiquidLine() {
    Open(1, "frmLiqLineLoss");
    Shoot("line-empty");
    FillLine("pipe-size");
    Click(Calculation, "cmdMatl");
    Shoot("line-material");
    PressKey(ControlOf(Calculation, "lstMatl"), "Escape");
    Click(Calculation, "mnuPureLiquid1");
    Shoot("line-liquids");
    Click(Calculation, "cmdCancel");
    ShootFluid("fluid", "wat");
    for (int i = 0; i < 3; ++i) Click(Calculation, "cmdCalculate", i);
    Type("txtInletPipeLen", Control::NoIndex, "1300");
    MoveFocus(ControlOf(Calculation, "txtInletPipeID"));
    Shoot("line-changed");
    Type("txtInletPipeLen", Control::NoIndex, "1000");
    for (int i = 2; i >= 0; --i) Click(Calculation, "cmdCalculate", i);
    Shoot("line-results");
    DropList("cmdService");
    Shoot("services");
    QApplication::activePopupWidget()->close();
    ShootTrials(7, 2, "sizes", "line-flow");
    Within([] {
        TypeText(ControlOf("frmObxPrintCalc", "txtTitle"), "Northfield Terminal");
        TypeText(ControlOf("frmObxPrintCalc", "txtSubTitle"), "Unit 200");
        TypeText(ControlOf("frmObxPrintCalc", "txtProjectNo"), "4471");
        TypeText(ControlOf("frmObxPrintCalc", "txtProjectName"), "Tank farm revamp");
        Shoot("printout");
        Within([] {
            Shoot("preview");
            QApplication::activeModalWidget()->close();
        });
        Click("frmObxPrintCalc", "mnuPreview");
        Click("frmObxPrintCalc", "cmdCancel");
    });
    Click(Calculation, "mnuPrint");
    Click(Calculation, "cmdFormLayout");
    Shoot("options");
    Click("frmCalcOptions", "cmdCancelOptions");
    DropList("cmdUnits", 1);
    Shoot("units-in-place");
    QApplication::activePopupWidget()->close();
    Click(Calculation, "cmdUnits", 1);
    Shoot("units");
    Click("frmUnits", "cmdUnit", 3);
    Shoot("units-choose");
    Click("frmUnits", "cmdCancel");
    Click("frmUnits", "cmdUnit", 1);
    Shoot("units-basis");
    Click("frmUnits", "cmdCanBasis");
    Click("frmUnits", "cmdCancelUn");
}

// examples/steam-line.qs without its low pressure, and the base conditions.
void ShootGasLine() {
    const char* const form = Open(2, "frmGasLineLoss");
    TypeAll(
        {{"txtTagNum", "ST-204"}, {"txtInletPipeLen", "800"}, {"txtInletGate", "1"}, {"txtInlet90Deg", "8"}});
    PickPipe("6", "  6,40S", nullptr);
    const char* const flows[] = {"25000", "20000", "10000"};
    for (int i = 0; i < 3; ++i) {
        Type("txtTemp", i, "600");
        Type("txtPressure", i, "150");
        Click(form, Entry("mnuSupersteam", i).c_str());
        Type("txtFlow", i, flows[i]);
    }
    Shoot("gas-empty");
    ShootFluid("fluid-steam", "");
    for (int i = 2; i >= 0; --i) Click(form, "cmdCalculate", i);
    Shoot("gas-results");
    ShootTrials(0, 3, "gas-sizes", "gas-flow");
    Click(form, "mnuSTP");
    Shoot("gas-base-conditions");
    Click(form, "cmdCancelSTP");
}

// examples/water-hammer.qs
void ShootHammer() {
    const char* const form = Open(3, "frmWaterHammer");
    Shoot("hammer-empty");
    TypeAll({{"txtTagNum", "XV-204"},
             {"txtMaxLiqFlow", "400000"},
             {"txtFlowTemp", "60"},
             {"txtOperPressure", "100"}});
    Click(form, "mnuPureLiquids");
    PickFluid("Water ");
    PickPipe("6", "  6,40S", nullptr);
    Click(form, "cmdPipeMatl");
    Shoot("hammer-moduli");
    Click(form, "cmdSelectModulus");
    TypeAll({{"txtLineLength", "2500"}, {"txtMaxAllowPressure", "300"}});
    Click(form, "cmdCalculateliq");
    Shoot("hammer-results");
    Type("txtSelectedTime", Control::NoIndex, "4");
    Click(form, "cmdCalculateliq");
    Shoot("hammer-selected");
}

// examples/liquid-properties.qs
void ShootLiquidData() {
    const char* const form = Open(4, "frmLiqData");
    Type("txtTagNum", Control::NoIndex, "TK-12");
    const char* const states[][2] = {{"60", "10"}, {"80", "50"}, {"180", "120"}};
    for (int i = 0; i < 3; ++i) {
        Type("txtTemp", i, states[i][0]);
        Type("txtPressure", i, states[i][1]);
        Click(form, Entry("mnuLiquid", i).c_str());
        PickFluid("Toluene ");
    }
    Shoot(form);
}

// examples/gas-properties.qs
void ShootGasData() {
    const char* const form = Open(5, "frmGasData");
    Type("txtTagNum", Control::NoIndex, "FG-2300");
    Type("txtTemp", 0, "80");
    Type("txtPressure", 0, "250");
    Type("txtTemp", 1, "120");
    Type("txtPressure", 1, "400");
    Click(form, "mnuMixtures1");
    const std::pair<const char*, const char*> parts[] = {{"Methane ", "72.5"},     {"Ethane ", "10.25"},
                                                         {"Propane ", "6"},        {"n-Butane ", "3.25"},
                                                         {"Carbon Dioxide ", "3"}, {"Nitrogen ", "5"}};
    for (int i = 0; i < 6; ++i) {
        PickFluid(parts[i].first);
        if (i == 5) Shoot("gas-mixture");
        Type("txtPercent", i, parts[i].second);
    }
    Click(form, "cmdCalcPseudo");
    Click(form, "cmdOK", 1);
    ShootFluid("fluid-mixture", "");
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

// The finder on a folder with something to find, folded up and open.
void ShootPathFinder() {
    Within([] {
        Shoot("path-finder");
        Click("WinSeek", "cmdBrouse");
        Click("WinSeek", "cmdSearch");
        // This machine's other drives are nobody's business.
        auto& drives = static_cast<ListBox&>(ControlOf("WinSeek", "drvList"));
        drives.SetRows({drives.Row(0)});
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
        SavePicture(*window, "help");
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

// What is done with saved records: two compared, all calculated anew, the copies of their file.
void ShootRecords() {
    auto& table = static_cast<Grid&>(ControlOf("frmTRProg", "grdRecords"));
    table.PickRows({1, 4}, 4);
    Within([] {
        Shoot("compare");
        Click("frmCompare", "cmdCancel");
    });
    Click("frmTRProg", "mnuCompareRecords");
    Within([] {
        Click("frmRecalculate", "cmdRun");
        Shoot("recalculate");
        Click("frmRecalculate", "cmdCancel");
    });
    Click("frmTRProg", "mnuRecalculateAll");
    Within([] {
        Shoot("backups");
        Click("frmBackups", "cmdCancel");
    });
    Click("frmTRProg", "mnuBackups");
    Within([] {
        TypeText(ControlOf("frmServer", "txtHost"), "records.office.example");
        TypeText(ControlOf("frmServer", "txtDatabase"), "plant");
        Shoot("server");
        Click("frmServer", "cmdCancel");
    });
    Click("frmTRProg", "mnuServerDB");
}

// A list with one row of each kind, dropped on the browser.
void ShootImport() {
    const std::string list = Suite.DefaultPaths[1] + "/lines.csv";
    std::ofstream(MachinePath(list))
        << "Tag,Program Number,Pipe,Pipe Length,Normal Flow,Normal Temperature,Normal Flow Source "
           "Pressure,Fluid "
           "Name,Remark\n"
           "P-201,1,6 in sch 40,850,120000,70,95,Toluene,new\n"
           "P-202,1,8 in sch 40,1200,250000,70,95,Toluene,new\n"
           "P-203,1,6 in sch 41,850,120000,70,95,Toluene,a schedule that there is not\n"
           "P-204,1,6 in sch 40,,120000,70,95,Toluene,no length\n"
           "P-205,2,6 in sch 40,400,a lot,70,95,Methane,no flow\n"
           "P-201,1,6 in sch 40,850,120000,70,95,Toluene,twice\n";
    Within([] {
        Click("frmImport", "cmdRead");
        Shoot("import");
        Click("frmImport", "cmdCancel");
    });
    LoadedForm("frmTRProg")->FileDropped(list);
}

// examples/plant-lines.qs: a list that comes in, and the line that is too small.
void ShootPlant() {
    Within([] {
        Click("frmImport", "cmdRead");
        Shoot("import");
        Click("frmImport", "cmdSave");
        Click("frmImport", "cmdCancel");
    });
    const auto list = std::filesystem::temp_directory_path() / "quillmetra-screens" / "plant-lines.csv";
    std::filesystem::copy_file("examples/plant-lines.csv", list);
    ImportRecords(SuitePath(list));
    Click("frmTRProg", "cmdDBClose");
    Click("frmTRProg", "cmdDBOpen");
    Within([] {
        TypeText(ControlOf("FindDialog", "txtFind"), "CW-115");
        Click("FindDialog", "cmdFind");
    });
    Click("frmTRProg", "cmdFind");
    Click("frmTRProg", "cmdDisplayCalc");
    Calculation = "frmLiqLineLoss";
    Click(Calculation, "cmdCalculateAll");
    Shoot("plant-line");
    ShootTrials(7, 2, "plant-sizes", "plant-flow");
    Type("txtFlow", 1, "350");  // saved without its results
    Click(Calculation, "mnuSave");
    Click(Calculation, "mnuProgram");
    Within([] {
        Click("frmRecalculate", "cmdRun");
        Shoot("plant-recalculate");
        Click("frmRecalculate", "cmdCancel");
    });
    Click("frmTRProg", "mnuRecalculateAll");
}

// The browser with the records that the pictures before have saved.
void ShootBrowser() {
    Click("frmTRProg", "cmdDBOpen");
    Shoot("browser-record");
    ShootRecords();
    ShootImport();
    Click("frmTRProg", "cmdBrowse");
    Shoot("browser-tags");
    Click("frmTRProg", "cmdCancel");
    Click("frmTRProg", "cmdDBClose");
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
    if (argc < 2) return 2;
    Folder = argv[1];
    UseSuiteStyle();
    QApplication::setFont(QFont("DejaVu Sans", 9));
    QApplication::setQuitOnLastWindowClosed(false);
    QTimer boxes;
    QObject::connect(&boxes, &QTimer::timeout, AnswerBoxes);
    boxes.start(20);
    DesktopHost host;
    RegisterForms();
    const auto folder = std::filesystem::temp_directory_path() / "quillmetra-screens";
    std::filesystem::remove_all(folder);  // what the run before has saved
    const std::string home = SuitePath(folder);
    SeedShippedData(home);
    StartUp(home);
    if (argc > 2) TakeScheme(argv[2]);
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
    ShootBrowser();
    ShootPrintControl();
    ShootPlant();
    ResetForms();
    return 0;
}
