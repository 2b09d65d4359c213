// See SchemePalette.h.
#include "desktop/SchemePalette.h"

#include <QApplication>
#include <QToolTip>

#include "core/Suite.h"
#include "desktop/Painting.h"
#include "forms/ColourSchemes.h"
#include "forms/ColourShades.h"

namespace quillmetra {

namespace {

void SetText(QPalette& palette, QPalette::ColorRole text, Colour ground, Colour fore) {
    palette.setColor(text, ToQt(Readable(ground, fore)));
    palette.setColor(QPalette::Disabled, text, ToQt(FaintText(ground, fore)));
}

void SetField(QPalette& palette, Colour area, Colour back, Colour fore) {
    palette.setColor(QPalette::Base, ToQt(back));
    const Colour off = Between(back, area, 0.6);
    palette.setColor(QPalette::Disabled, QPalette::Base, ToQt(off));
    palette.setColor(QPalette::AlternateBase, ToQt(Between(back, fore, 0.04)));
    palette.setColor(QPalette::PlaceholderText, ToQt(FaintText(back, fore)));
    SetText(palette, QPalette::Text, back, fore);
    palette.setColor(QPalette::Disabled, QPalette::Text, ToQt(FaintText(off, fore)));
}

void SetAccent(QPalette& palette, Colour accent, Colour area) {
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, ToQt(accent));
        palette.setColor(group, QPalette::HighlightedText, ToQt(Readable(accent, area)));
    }
    const Colour off = Between(area, accent, 0.3);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, ToQt(off));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, ToQt(Readable(off, area)));
    palette.setColor(QPalette::Link, ToQt(accent));
    palette.setColor(QPalette::LinkVisited, ToQt(accent));
}

}  // namespace

QPalette SchemePalette() {
    const Colour area = SlotColour(slot::Area), text = SlotColour(slot::AreaText);
    const Colour button = Between(area, text, 0.05), tip = Between(area, text, 0.08);
    QPalette palette;
    PaintAreaRoles(palette, area, Readable(area, text));
    palette.setColor(QPalette::Button, ToQt(button));
    SetText(palette, QPalette::ButtonText, button, text);
    SetField(palette, area, SlotColour(slot::InputBack), SlotColour(slot::InputText));
    SetAccent(palette, AccentColour(), area);
    palette.setColor(QPalette::ToolTipBase, ToQt(tip));
    SetText(palette, QPalette::ToolTipText, tip, text);
    palette.setColor(QPalette::BrightText, ToQt(Readable(area, SlotColour(slot::Changed))));
    palette.setColor(QPalette::Light, ToQt(Between(area, 0xFFFFFF, 0.5)));
    palette.setColor(QPalette::Dark, ToQt(Between(area, text, 0.3)));
    palette.setColor(QPalette::Shadow, ToQt(Between(area, 0x000000, 0.8)));
    return palette;
}

void FollowScheme() {
    static auto painted = decltype(Suite.Colours){};
    if (painted == Suite.Colours) return;
    painted = Suite.Colours;
    const QPalette palette = SchemePalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

}  // namespace quillmetra
