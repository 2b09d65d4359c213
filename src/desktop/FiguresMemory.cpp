// See FiguresMemory.h.
#include "desktop/FiguresMemory.h"

#include <QSettings>

#include "core/Suite.h"
#include "forms/PanelReturn.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace {

constexpr const char* Key = "figures/converted";

struct FiguresWord {
    Figures Choice;
    const char* Word;
};
constexpr FiguresWord Words[] = {{Figures::Ask, "ask"}, {Figures::Round, "round"}, {Figures::Keep, "keep"}};

}  // namespace

void RememberFigures(const std::string& suitePath) {
    const QString file = QString::fromStdU16String(MachinePath(suitePath).u16string());
    const QString kept = QSettings(file, QSettings::IniFormat).value(Key).toString();
    for (const FiguresWord& each : Words) {
        if (kept == QLatin1String(each.Word)) Suite.ConvertedFigures = each.Choice;
    }
    SetFiguresKeeper([file](Figures choice) {
        for (const FiguresWord& each : Words) {
            if (each.Choice == choice) QSettings(file, QSettings::IniFormat).setValue(Key, each.Word);
        }
    });
}

}  // namespace quillmetra
