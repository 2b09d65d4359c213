// A report on a form that a test has made up from a list of its texts: what a page says depends on nothing
// else of the form.
#pragma once

#include <cmath>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "core/Programs.h"
#include "core/Words.h"
#include "platform/Controls.h"
#include "reports/ReportPage.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {

// Its controls are read from lines such as "txtFlow(0)= 18000".
class PaperForm : public Form {
public:
    explicit PaperForm(const char* name) : Form(name) {}
    void CloseBox() override {}

    void Add(const std::string& line) {
        const std::size_t equals = line.find('=');
        std::string name = line.substr(0, equals);
        const std::string text = line.substr(equals + 1);
        int index = Control::NoIndex;
        if (const std::size_t bracket = name.find('('); bracket != std::string::npos) {
            index = std::stoi(name.substr(bracket + 1));
            name.erase(bracket);
        }
        if (name.starts_with("chk")) {
            auto box = std::make_unique<CheckBox>(*this, name);
            box->SetChecked(text == "ticked");
            controls_.push_back(std::move(box));
        } else {
            controls_.push_back(std::make_unique<Label>(*this, name, text, index));
        }
    }

private:
    std::vector<std::unique_ptr<Control>> controls_;
};

inline std::string ReadFile(const std::filesystem::path& path) { return ReadBytes(SuitePath(path)); }

// Lines of a page: number, places of the texts with b for bold, h and s for large and small letters, and the
// characters; then what is drawn.
inline std::string Listing(const PrintedPage& page) {
    std::map<int, std::string> marks;
    std::string drawn;
    for (const PrintOp& op : page.Ops) {
        const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
        if (op.What == PrintOp::Kind::Line) {
            drawn += "line " + number(*op.X) + "," + number(op.Y) + " + " + number(op.StepX) + "," +
                     number(op.StepY) + "\n";
        }
        const int line = static_cast<int>(std::ceil(op.Y / 240));
        const bool bare = !op.X && op.Cells.size() == 1 && op.Cells[0].Column == 0;
        if (op.What != PrintOp::Kind::Text || bare || line < 1) continue;
        std::string& mark = marks[line];
        mark += (mark.empty() ? "" : "+") + number(op.Y) + (op.FontBold ? "B" : "") +
                (op.FontSize > page.Font.Size   ? "h"
                 : op.FontSize < page.Font.Size ? "s"
                                                : "");
    }
    std::istringstream lines(PageAsText(page));
    std::string listing;
    int number = 0;
    for (std::string text; std::getline(lines, text);) {
        if (!marks.contains(++number)) continue;
        char head[32];
        std::snprintf(head, sizeof head, "%2d %-12s|", number, marks[number].c_str());
        listing += head + text + "\n";
    }
    return listing + drawn;
}

template <std::size_t Index>
std::unique_ptr<Form> MakePaperForm() {
    return std::make_unique<PaperForm>(Programs[Index].Form);
}

class ReportTest : public SuiteTest {
protected:
    ReportTest() {
        constexpr FormFactory makers[] = {MakePaperForm<0>, MakePaperForm<1>, MakePaperForm<2>,
                                          MakePaperForm<3>, MakePaperForm<4>};
        for (std::size_t i = 0; i < Programs.size(); ++i) RegisterForm(Programs[i].Form, makers[i]);
    }

    static PaperForm& FormOf(int program) {
        return static_cast<PaperForm&>(LoadForm(FindProgram(program)->Form));
    }

    // Makes the form of a program from a file of its texts.
    void UseProgram(int number, const std::string& texts) {
        const Program& program = *FindProgram(number);
        Calc.CurrentProgram = number;
        Calc.ProgramTitle = program.Title;
        Suite.VersionText = "Ver.6.0.2.  ";
        std::istringstream lines(ReadFile(Pages() / (texts + ".form")));
        for (std::string line; std::getline(lines, line);) FormOf(number).Add(line);
        // The liquid data report takes two lines from the form of the gas line.
        if (number != program::LiquidData) return;
        for (const char* line : {"lblSetupSelections=", "lblCalcSource="}) FormOf(2).Add(line);
    }

    static std::filesystem::path Pages() { return SourceFolder() / "tests/reports/pages"; }

    void UseMixture(const std::vector<std::pair<double, std::string>>& components) {
        Calc.MixtureFlag = words::Yes;
        for (std::size_t i = 0; i < components.size(); ++i) {
            Calc.FluidPercent[i] = components[i].first;
            Calc.FluidData[i] = components[i].second + " , 1, 2, 3";
        }
    }

    const PrintedPage& Print() {
        Printer.Open({});
        PrintReportPage(Texts, 10);
        Printer.EndDoc();
        Printer.Close();
        return User.Pages.back();
    }

    ReportTexts Texts{"03/14/2025",
                      "Northfield Terminal",
                      "Unit 200 line sizing",
                      "Tank farm revamp",
                      "4471",
                      {"Checked against isometric 200-14.", "Valve list of rev. B.", ""}};
};

}  // namespace quillmetra
