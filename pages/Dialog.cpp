// Common behaviour of the program's dialogs.
#include "pages/Dialog.h"

namespace korvane {

bool CDialog::OnInitDialog(DialogControls& controls) {
    controls_ = &controls;
    DoDataExchange();
    const bool alive = OnInitDialog();
    if (!alive) {
        controls_ = nullptr;  // a dialog that has ended must not be shown again
    }
    return alive;
}

bool CDialog::applySkin(std::span<const SkinAssignment> elements) {
    for (const SkinAssignment& element : elements) {
        if (!host_.applySkinElement(controls(), element)) {
            host_.showSkinFailure();
            controls().endDialog(0);
            return false;
        }
    }
    return true;
}

}  // namespace korvane
