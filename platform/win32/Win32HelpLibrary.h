// The help viewer's library, which a bare Windows does not have: it is loaded when the user asks for help.
#pragma once

#include "platform/System.h"

#include <cstdint>
#include <string>

#include <windows.h>

namespace korvane {

class Win32HelpLibrary final : public HelpLibrary {
public:
    bool programIsElevated() override;
    bool load(const std::string& path) override;
    bool findFunction(int ordinal) override;
    std::uintptr_t call(std::uintptr_t caller, const std::string& file, unsigned command, std::uintptr_t data) override;

private:
    using HelpFunction = HWND(WINAPI*)(HWND, LPCSTR, UINT, DWORD_PTR);

    HMODULE module_ = nullptr;  // never unloaded: its windows may still be open
    HelpFunction function_ = nullptr;
};

}  // namespace korvane
