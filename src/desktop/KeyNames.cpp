// See KeyNames.h.
#include "desktop/KeyNames.h"

#include <QKeyEvent>

#include "platform/Keys.h"

namespace quillmetra {

namespace {

struct NamedKey {
    int Code;
    const char* Name;
};

constexpr NamedKey NamedKeys[] = {
    {Qt::Key_Return, keys::Enter},      {Qt::Key_Enter, keys::Enter}, {Qt::Key_Escape, keys::Escape},
    {Qt::Key_Tab, keys::Tab},           {Qt::Key_Backtab, keys::Tab}, {Qt::Key_Backspace, keys::Backspace},
    {Qt::Key_Delete, keys::Delete},     {Qt::Key_Up, keys::Up},       {Qt::Key_Down, keys::Down},
    {Qt::Key_Left, keys::Left},         {Qt::Key_Right, keys::Right}, {Qt::Key_PageUp, keys::PageUp},
    {Qt::Key_PageDown, keys::PageDown},
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
    if (held.testFlag(Qt::ControlModifier)) with += keys::Ctrl;
    if (held.testFlag(Qt::AltModifier)) with += keys::Alt;
    if (!isCharacter && held.testFlag(Qt::ShiftModifier)) with += keys::Shift;
    return with.append(name);
}

}  // namespace quillmetra
