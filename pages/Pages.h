// The nine pages: containers of controls with some behaviour of their own. They
// know nothing of the registry; show and apply routines use their controls.
#pragma once

#include "pages/Dialog.h"

#include <memory>
#include <vector>

namespace korvane {

class CPage : public CDialog {
public:
    CPage(DialogHost& host, Page page) : CDialog(host), page_(page) {}

    int templateId() const { return layoutOf(page_).templateId; }
    // Hides the page's tweak controls, not its header.
    void HideControls();
    // False if the template lacks a control that the page binds.
    bool bound() const { return bound_; }

protected:
    void DoDataExchange() override;
    using CDialog::OnInitDialog;
    bool OnInitDialog() override { return applySkin(layout().skin); }
    const PageLayout& layout() const { return layoutOf(page_); }

private:
    Page page_;
    bool bound_ = false;
};

// Overviews, and tweaks with a table of choices.
class CCategoryPage : public CPage {
public:
    explicit CCategoryPage(DialogHost& host) : CPage(host, Page::Category) {}

protected:
    bool OnInitDialog() override;
};

class CChecksPage : public CPage {
public:
    explicit CChecksPage(DialogHost& host) : CPage(host, Page::Checks) {}
};

// A page with browse buttons: each fills the edit box of its row, or empties it if the user cancels.
class CBrowsePage : public CPage {
public:
    using CPage::CPage;
    void OnClicked(int id) override;
};

class CCheckFieldsPage : public CBrowsePage {
public:
    explicit CCheckFieldsPage(DialogHost& host) : CBrowsePage(host, Page::CheckFields) {}
    void OnClicked(int id) override;
    // Enables or disables the first two edit boxes and the first browse button.
    void EnableFields(bool enabled);
};

class CCheckCombosPage : public CPage {
public:
    explicit CCheckCombosPage(DialogHost& host) : CPage(host, Page::CheckCombos) {}

protected:
    bool OnInitDialog() override;
};

class CCheckListPage : public CPage {
public:
    explicit CCheckListPage(DialogHost& host) : CPage(host, Page::CheckList) {}

protected:
    bool OnInitDialog() override;
};

class CPathFieldsPage : public CBrowsePage {
public:
    explicit CPathFieldsPage(DialogHost& host) : CBrowsePage(host, Page::PathFields) {}
};

class CCombosPage : public CPage {
public:
    explicit CCombosPage(DialogHost& host) : CPage(host, Page::Combos) {}
};

class CEditCombosPage : public CPage {
public:
    explicit CEditCombosPage(DialogHost& host) : CPage(host, Page::EditCombos) {}
};

class CCheckComboPage : public CPage {
public:
    explicit CCheckComboPage(DialogHost& host) : CPage(host, Page::CheckCombo) {}
    // The check box enables or disables the combo box at once.
    void OnClicked(int id) override;

protected:
    bool OnInitDialog() override;
};

// One page of each kind, in the order of the Page enumeration.
std::vector<std::unique_ptr<CPage>> makePages(DialogHost& host);

}  // namespace korvane
