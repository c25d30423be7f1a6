// The shell's item lists, with which it names folders.
#pragma once

#include "platform/win32/Handles.h"

#include <array>
#include <string>

#include <windows.h>
#include <objbase.h>
#include <shlobj.h>

namespace korvane {

inline void freeShellItem(ITEMIDLIST* list) { CoTaskMemFree(list); }
using ShellItem = UniqueHandle<ITEMIDLIST*, freeShellItem>;

// Empty for no item, and for one that is not in the file system.
inline std::string pathOf(const ShellItem& item) {
    std::array<char, MAX_PATH> path{};
    return item && SHGetPathFromIDListA(item.get(), path.data()) ? std::string(path.data()) : std::string();
}

}  // namespace korvane
