// The About box.
#pragma once

#include "pages/Dialog.h"

namespace korvane {

class CAboutDlg : public CDialog {
public:
    using CDialog::CDialog;

protected:
    using CDialog::OnInitDialog;
    bool OnInitDialog() override;
};

}  // namespace korvane
