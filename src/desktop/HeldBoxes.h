// Boxes that a menu has to tell while it opens. A box must not come up out of an opening menu, whose toolkit
// goes on with it afterwards; it waits until the menus have closed.
#pragma once

#include <utility>
#include <vector>

#include "platform/Dialogs.h"

namespace quillmetra {

// While one lives, a box with OK alone is kept here and counts as read.
class HeldBoxes {
public:
    HeldBoxes() : outer_(std::exchange(inForce_, this)) {}
    ~HeldBoxes() { inForce_ = outer_; }
    HeldBoxes(const HeldBoxes&) = delete;
    HeldBoxes& operator=(const HeldBoxes&) = delete;

    // True when the box is held.
    static bool Hold(const MessageBox& box) {
        if (inForce_ == nullptr || box.Choice != Buttons::Ok) return false;
        inForce_->boxes_.push_back(box);
        return true;
    }

    const std::vector<MessageBox>& Boxes() const { return boxes_; }

private:
    static inline HeldBoxes* inForce_ = nullptr;
    HeldBoxes* outer_;
    std::vector<MessageBox> boxes_;
};

}  // namespace quillmetra
