// Both dialogs return a path of at most MAX_PATH bytes.
#include "platform/win32/Win32Pickers.h"

#include "platform/win32/ShellItem.h"

#include <algorithm>
#include <array>

#include <commdlg.h>

namespace korvane {

std::string Win32Pickers::browseForFolder() {
    std::array<char, MAX_PATH> displayName{};
    BROWSEINFOA info{};
    info.hwndOwner = owner;
    info.pszDisplayName = displayName.data();
    info.ulFlags = BIF_RETURNONLYFSDIRS;
    return pathOf(ShellItem(SHBrowseForFolderA(&info)));
}

// Without OFN_NOCHANGEDIR the dialog would leave the program in another current folder.
std::string Win32Pickers::openFile(std::string_view filter) {
    std::array<char, MAX_PATH> path{};
    const std::string parts = dialogFilter(filter);
    OPENFILENAMEA request{};
    request.lStructSize = OPENFILENAME_SIZE_VERSION_400A;  // the only size that NT 4 and 98 know
    request.hwndOwner = owner;
    request.lpstrFilter = parts.c_str();
    request.lpstrFile = path.data();
    request.nMaxFile = MAX_PATH;
    request.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    return GetOpenFileNameA(&request) ? std::string(path.data()) : std::string();
}

std::string dialogFilter(std::string_view filter) {
    std::string parts(filter);
    std::ranges::replace(parts, '|', '\0');
    parts.append(2, '\0');
    return parts;
}

}  // namespace korvane
