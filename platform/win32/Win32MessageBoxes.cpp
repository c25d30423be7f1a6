// One call, with an OK button.
#include "platform/win32/Win32MessageBoxes.h"

namespace korvane {

// Without a caption Windows puts its own, "Error" in its language.
void Win32MessageBoxes::show(const MessageBoxRequest& request) {
    const UINT icon = request.icon == MessageIcon::Stop ? MB_ICONSTOP : 0;
    MessageBoxA(request.ownedByMainWindow ? owner : nullptr, request.text.c_str(),
                request.caption.empty() ? nullptr : request.caption.c_str(), MB_OK | icon);
}

}  // namespace korvane
