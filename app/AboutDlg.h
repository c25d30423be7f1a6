// The About box.
#pragma once

#include "lang/LanguageFile.h"
#include "pages/Dialog.h"

namespace korvane {

class CAboutDlg : public CDialog {
public:
    CAboutDlg(DialogHost& host, const LanguageFile& language) : CDialog(host), language_(language) {}

protected:
    using CDialog::OnInitDialog;
    bool OnInitDialog() override;

private:
    const LanguageFile& language_;
};

}  // namespace korvane
