// The folder browser of the shell and the common file dialog.
#pragma once

#include "platform/System.h"

#include <string>
#include <string_view>

#include <windows.h>

namespace korvane {

class Win32Pickers final : public Pickers {
public:
    std::string browseForFolder() override;
    std::string openFile(std::string_view filter) override;

    HWND owner = nullptr;  // borrowed; cannot be used while a picker is open. Null: the pickers stand alone
};

// The filter "Name|*.ext||" as the file dialog takes it: each part ends with a zero byte, the whole with one more.
std::string dialogFilter(std::string_view filter);

}  // namespace korvane
