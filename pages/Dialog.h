// What all dialogs of the program share: their controls and their skin. If the skin
// engine refuses an element, the dialog ends.
#pragma once

#include "pages/PageLayout.h"
#include "platform/DialogControls.h"

#include <span>
#include <string>

namespace korvane {

// What the main window offers its dialogs.
class DialogHost {
public:
    virtual ~DialogHost() = default;

    // False if the skin engine refuses the element.
    virtual bool applySkinElement(DialogControls& dialog, const SkinAssignment& element) = 0;
    virtual void showSkinFailure() = 0;
    virtual std::uint32_t randomSeed() = 0;
    // True if the first check box of the current item enables and disables its fields.
    virtual bool boxEnablesFields() = 0;
    // Lets the user pick what the current item requires at that browse button. Returns the text for the edit box, empty
    // if the user cancels.
    virtual std::string browse(int button) = 0;
};

class CDialog : public DialogHandler {
public:
    explicit CDialog(DialogHost& host) : host_(host) {}
    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;

    // Binds the controls, then initialises. False if the dialog has ended itself, after a message.
    bool OnInitDialog(DialogControls& controls) override;
    void OnClicked(int) override {}

    DialogControls& controls() { return *controls_; }
    bool exists() const { return controls_ != nullptr; }

protected:
    // Called once the controls exist; the base class binds none.
    virtual void DoDataExchange() {}
    virtual bool OnInitDialog() = 0;
    // Applies the elements in turn; at the first refusal shows the message, ends the dialog and returns false.
    bool applySkin(std::span<const SkinAssignment> elements);
    DialogHost& host() { return host_; }

private:
    DialogHost& host_;
    DialogControls* controls_ = nullptr;
};

}  // namespace korvane
