// What stands on the screen for a button that drops a list: its arrow, and the list as a menu.
#pragma once

#include <QElapsedTimer>
#include <QPushButton>

#include "platform/DropButton.h"

namespace quillmetra {

class DropPushButton : public QPushButton {
public:
    explicit DropPushButton(QWidget* parent) : QPushButton(parent) {}

    // The control, null once its form is gone or for one that drops nothing.
    void SetModel(DropButton* model) { model_ = model; }

    // For a press by a key, or of a screen reader's.
    void DropAtPress() {
        if (model_ != nullptr && model_->DropsAtPress()) DropSoon();
    }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool Drops() const { return model_ != nullptr && model_->Lines != nullptr; }
    int ArrowWidth() const;
    void DropSoon();
    void Drop();

    DropButton* model_ = nullptr;
    QElapsedTimer closed_;  // since its menu closed
};

}  // namespace quillmetra
