// Message boxes of Windows.
#pragma once

#include "platform/MessageBoxes.h"

#include <windows.h>

namespace korvane {

class Win32MessageBoxes final : public MessageBoxes {
public:
    void show(const MessageBoxRequest& request) override;

    HWND owner = nullptr;  // the main window, borrowed; null while there is none
};

}  // namespace korvane
