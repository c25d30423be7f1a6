// The About box's texts and skin.
#include "app/AboutDlg.h"

#include "res/ControlIds.h"

namespace korvane {
namespace {

constexpr int kOkButton = 1;
constexpr SkinAssignment kSkin[] = {{0, "Main"},
                                 {kOkButton, "Button"},
                                 {IDC_ABOUT_VERSION, "Label"},
                                 {IDC_ABOUT_NOTICE, "Label"},
                                 {IDC_ABOUT_TEXT, "Label"}};

}  // namespace

bool CAboutDlg::OnInitDialog() {
    language_.translateDialog(controls(), IDD_ABOUT);
    return applySkin(kSkin);
}

}  // namespace korvane
