// The running Windows as a whole: one object for each area of the seams. Imported are only calls that NT 4 and 98 have.
#pragma once

#include "platform/stdio/IniFile.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32HelpLibrary.h"
#include "platform/win32/Win32MessageBoxes.h"
#include "platform/win32/Win32Pickers.h"
#include "platform/win32/Win32SystemInfo.h"

namespace korvane {

class Win32System {
public:
    Win32System() = default;
    Win32System(const Win32System&) = delete;
    Win32System& operator=(const Win32System&) = delete;

    // Borrows this system and the registry.
    Platform platform(Registry& registry) {
        return {registry, messages_, version_, clock_, folders_, profile_, pickers_, files_, help_};
    }

    // The owner of message boxes and pickers from now on; null for none.
    void setMainWindow(HWND window) {
        messages_.owner = window;
        pickers_.owner = window;
    }

private:
    Win32MessageBoxes messages_;
    Win32Version version_;
    Win32Clock clock_;
    Win32Folders folders_;
    IniFile profile_{CodePage::ofHost()};
    Win32Pickers pickers_;
    Win32Files files_;
    Win32HelpLibrary help_;
};

}  // namespace korvane
