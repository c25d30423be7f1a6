// Loading the help library: from where it is registered, or else by its name.
#include "app/HelpLoader.h"

#include "pages/RegistryAccess.h"

#include <algorithm>
#include <array>

namespace korvane {
namespace {

// The HTML Help control's in-process server.
constexpr std::string_view kServerKey = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
// The classes of the whole machine; in HKEY_CLASSES_ROOT those of the user stand before them.
constexpr std::string_view kMachineClasses = "Software\\Classes\\";
constexpr std::size_t kPathBuffer = 260;
constexpr const char* kLibraryName = "hhctrl.ocx";
constexpr int kHelpOrdinal = 14;  // the 8-bit help function

}  // namespace

// Any program of the user can write the user's own classes. What an elevated program loads is therefore what the
// machine's classes say as well; comparing the two leaves no moment in which one could still be exchanged.
std::string HelpLoader::registeredPath() {
    const std::string path = pathAt(Root::ClassesRoot, kServerKey);
    const std::string machineKey = std::string(kMachineClasses).append(kServerKey);
    const bool trusted = !library_.programIsElevated() || path == pathAt(Root::LocalMachine, machineKey);
    return trusted ? path : std::string();
}

std::string HelpLoader::pathAt(Root root, std::string_view key) {
    RegistryHandle rootKey;
    RegistryHandle server;
    std::array<std::byte, kPathBuffer> buffer{};
    std::size_t size = 0;
    if (registry_.connect(root, rootKey) != Status::Success ||
        registry_.openKeyForReading(rootKey, key, server) != Status::Success ||
        registry_.queryValue(server, "", buffer, size) != Status::Success) {
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
