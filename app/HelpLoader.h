// Opens the compiled help through a library that is loaded on first use. If loading
// fails once, later calls do not try again.
#pragma once

#include "platform/Registry.h"
#include "platform/System.h"

#include <string>

namespace korvane {

class HelpLoader {
public:
    HelpLoader(Registry& registry, HelpLibrary& library) : registry_(registry), library_(library) {}

    // Calls the help function; returns its result, or 0 if the library or the function is missing.
    std::uintptr_t call(std::uintptr_t caller, const std::string& file, unsigned command, std::uintptr_t data);

private:
    bool load();
    std::string registeredPath();
    std::string pathAt(Root root, std::string_view key);

    Registry& registry_;
    HelpLibrary& library_;
    bool loaded_ = false;
    bool functionKnown_ = false;
    bool failed_ = false;
};

}  // namespace korvane
