// See KeyNames.h.
#include "desktop/KeyNames.h"

#include <QKeyEvent>

namespace quillmetra {

namespace {

struct NamedKey {
    int Code;
    const char* Name;
};

constexpr NamedKey NamedKeys[] = {
    {Qt::Key_Return, "Enter"},      {Qt::Key_Enter, "Enter"}, {Qt::Key_Escape, "Escape"},
    {Qt::Key_Tab, "Tab"},           {Qt::Key_Backtab, "Tab"}, {Qt::Key_Backspace, "Backspace"},
    {Qt::Key_Delete, "Delete"},     {Qt::Key_Up, "Up"},       {Qt::Key_Down, "Down"},
    {Qt::Key_Left, "Left"},         {Qt::Key_Right, "Right"}, {Qt::Key_PageUp, "PageUp"},
    {Qt::Key_PageDown, "PageDown"},
};

const char* PlainName(int code) {
    for (const NamedKey& key : NamedKeys) {
        if (key.Code == code) return key.Name;
    }
    return nullptr;
}

}  // namespace

std::string NameOfKey(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    std::string name;
    bool isCharacter = false;
    if (const char* plain = PlainName(event.key())) {
        name = plain;
    } else if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) {
        name = std::string(1, 'F').append(std::to_string(event.key() - Qt::Key_F1 + 1));
    } else if (held.testAnyFlags(Qt::ControlModifier | Qt::AltModifier)) {
        if (event.key() < Qt::Key_Space || event.key() > Qt::Key_AsciiTilde) return {};
        name = QString(QChar(event.key())).toLower().toStdString();
    } else {
        if (event.text().isEmpty() || !event.text().at(0).isPrint()) return {};
        name = event.text().toStdString();
        isCharacter = true;
    }
    std::string with;
    if (held.testFlag(Qt::ControlModifier)) with += "Ctrl+";
    if (held.testFlag(Qt::AltModifier)) with += "Alt+";
    if (!isCharacter && held.testFlag(Qt::ShiftModifier)) with += "Shift+";
    return with.append(name);
}

}  // namespace quillmetra
