// Functions of Windows that the oldest versions lack: importing them would keep the program from loading there, so they
// are looked up while it runs.
#pragma once

#include <windows.h>

namespace korvane {

// Null when the module is null or exports no such function.
template <class Function>
Function findExport(HMODULE module, LPCSTR name) {
    if (module == nullptr) {
        return nullptr;
    }
    // The compiler warns of casts between unlike function types, but takes this one for a generic pointer.
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(module, name)));
}

}  // namespace korvane
