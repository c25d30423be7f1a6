// Opens the compiled help through a library that is loaded on first use. Once
// loading has failed, later calls do nothing and try nothing.
#pragma once

#include "platform/Registry.h"
#include "platform/System.h"

#include <string>

namespace korvane {

class HelpLoader {
public:
    HelpLoader(Registry& registry, HelpLibrary& library) : registry_(registry), library_(library) {}

    // The help function's result for the four arguments; 0 when the library or its function is missing.
    std::uintptr_t call(std::uintptr_t caller, const std::string& file, unsigned command, std::uintptr_t data);

private:
    bool load();
    std::string registeredPath();

    Registry& registry_;
    HelpLibrary& library_;
    bool loaded_ = false;
    bool functionKnown_ = false;
    bool failed_ = false;
};

}  // namespace korvane
