// What all dialogs of the program have in common: their controls, their skin,
// and what ends them when the skin is refused.
#pragma once

#include "pages/PageLayout.h"
#include "platform/DialogControls.h"

#include <span>
#include <string>

namespace korvane {

// The main window's services for its dialogs.
class DialogHost {
public:
    virtual ~DialogHost() = default;

    // False: the skin engine refused that element.
    virtual bool applySkinElement(DialogControls& dialog, const SkinElement& element) = 0;
    virtual void showSkinFailure() = 0;
    virtual std::uint32_t randomSeed() = 0;
    // True when the first box of the current item enables and disables its fields.
    virtual bool boxEnablesFields() = 0;
    // Lets the user choose what the current item wants beside that browse button; the text for the edit box, empty
    // after a cancelled dialog.
    virtual std::string browse(int button) = 0;
};

class CDialog : public DialogHandler {
public:
    explicit CDialog(DialogHost& host) : host_(host) {}
    CDialog(const CDialog&) = delete;
    CDialog& operator=(const CDialog&) = delete;

    // Binds the controls, then initialises. False: the dialog has ended itself, after a message.
    bool OnInitDialog(DialogControls& controls) override;
    void OnClicked(int) override {}

    DialogControls& controls() { return *controls_; }
    bool exists() const { return controls_ != nullptr; }

protected:
    // Called once the controls exist; the base class has nothing to bind.
    virtual void DoDataExchange() {}
    virtual bool OnInitDialog() = 0;
    // Applies the elements in turn; at the first refusal shows the message, ends the dialog and answers false.
    bool applySkin(std::span<const SkinElement> elements);
    DialogHost& host() { return host_; }

private:
    DialogHost& host_;
    DialogControls* controls_ = nullptr;
};

}  // namespace korvane
