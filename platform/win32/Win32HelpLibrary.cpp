// Loading the library, and calling it through the export that was found.
#include "platform/win32/Win32HelpLibrary.h"

#include "platform/win32/Handles.h"
#include "platform/win32/RunTimeFunction.h"

namespace korvane {

// Tokens know of elevation since Vista; older versions reject the query, and Windows 98 has no tokens at all.
bool Win32HelpLibrary::programIsElevated() {
    using OpenToken = BOOL(WINAPI*)(HANDLE, DWORD, HANDLE*);
    using TokenInformation = BOOL(WINAPI*)(HANDLE, TOKEN_INFORMATION_CLASS, void*, DWORD, DWORD*);
    constexpr auto kElevation = static_cast<TOKEN_INFORMATION_CLASS>(20);
    const HMODULE library = GetModuleHandleA("advapi32.dll");
    const auto openToken = findExport<OpenToken>(library, "OpenProcessToken");
    const auto tokenInformation = findExport<TokenInformation>(library, "GetTokenInformation");
    KernelHandle token;
    if (openToken == nullptr || tokenInformation == nullptr ||
        !openToken(GetCurrentProcess(), TOKEN_QUERY, token.receive())) {
        return false;
    }
    DWORD elevated = 0;
    DWORD size = 0;
    return tokenInformation(token.get(), kElevation, &elevated, sizeof elevated, &size) && elevated != 0;
}

bool Win32HelpLibrary::load(const std::string& path) {
    const HMODULE module = LoadLibraryA(path.c_str());
    if (module != nullptr) {
        module_ = module;
    }
    return module != nullptr;
}

bool Win32HelpLibrary::findFunction(int ordinal) {
    function_ = findExport<HelpFunction>(module_, MAKEINTRESOURCEA(ordinal));
    return function_ != nullptr;
}

std::uintptr_t Win32HelpLibrary::call(std::uintptr_t caller, const std::string& file, unsigned command,
                                      std::uintptr_t data) {
    if (function_ == nullptr) {
        return 0;
    }
    return reinterpret_cast<std::uintptr_t>(
        function_(reinterpret_cast<HWND>(caller), file.c_str(), command, static_cast<DWORD_PTR>(data)));
}

}  // namespace korvane
