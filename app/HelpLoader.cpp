// Loading the help library: from where it is registered, or else by its name.
#include "app/HelpLoader.h"

#include "pages/RegistryAccess.h"

#include <algorithm>
#include <array>

namespace korvane {
namespace {

// The HTML Help control's in-process server.
constexpr std::string_view kServerKey = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
constexpr std::size_t kPathBuffer = 260;
constexpr const char* kLibraryName = "hhctrl.ocx";
constexpr int kHelpOrdinal = 14;  // the 8-bit help function

}  // namespace

std::string HelpLoader::registeredPath() {
    RegistryHandle root;
    RegistryHandle key;
    std::array<std::byte, kPathBuffer> buffer{};
    std::size_t size = 0;
    if (registry_.connect(Root::ClassesRoot, root) != Status::Success ||
        registry_.openKeyForReading(root, kServerKey, key) != Status::Success ||
        registry_.queryValue(key, "", buffer, size) != Status::Success) {
        return {};
    }
    const char* first = reinterpret_cast<const char*>(buffer.data());
    return {first, std::find(first, first + size, '\0')};
}

bool HelpLoader::load() {
    if (!loaded_ && !failed_) {
        const std::string path = registeredPath();
        loaded_ = (!path.empty() && library_.load(path)) || library_.load(kLibraryName);
        failed_ = !loaded_;
    }
    if (loaded_ && !functionKnown_ && !failed_) {
        functionKnown_ = library_.findFunction(kHelpOrdinal);
        failed_ = !functionKnown_;
    }
    return functionKnown_;
}

std::uintptr_t HelpLoader::call(std::uintptr_t caller, const std::string& file, unsigned command,
                                std::uintptr_t data) {
    return load() ? library_.call(caller, file, command, data) : 0;
}

}  // namespace korvane
