// A window of the sample form, and how its widgets are reached.
#pragma once

#include <QLineEdit>
#include <QListView>

#include "tests/desktop/DesktopFixture.h"
#include "tests/desktop/SampleForm.h"

namespace quillmetra {

using Events = std::vector<std::string>;

class WindowTest : public DesktopTest {
protected:
    WindowTest() {
        RegisterForm("frmSample", [] { return std::unique_ptr<Form>(new SampleForm); });
        Sample = static_cast<SampleForm*>(&Show("frmSample"));
        Sample->TakeEvents();
    }

    QLineEdit& Edit(const TextBox& box) { return static_cast<QLineEdit&>(WidgetOf(box)); }
    QListView& Rows(const ListBox& list) { return static_cast<QListView&>(WidgetOf(list)); }

    void ClickRow(const ListBox& list, int row) {
        QListView& view = Rows(list);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, PlaceOf(list, row));
        Settle();
    }

    QPoint PlaceOf(const ListBox& list, int row) {
        QListView& view = Rows(list);
        return view.visualRect(view.model()->index(row, 0)).center();
    }

    static Colour FromQt(const QColor& colour) {
        return static_cast<Colour>(colour.red() | colour.green() << 8 | colour.blue() << 16);
    }

    bool HasKeyboard(const Control& control) {
        return QApplication::focusWidget() == ViewOf(control).KeyTarget();
    }

    SampleForm* Sample;
};

}  // namespace quillmetra
