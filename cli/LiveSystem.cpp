// Registry, version, folders and files of the running Windows.
#include "cli/LiveSystem.h"

#ifdef _WIN32
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32SystemInfo.h"
#endif

namespace korvane {

#ifdef _WIN32

namespace {

class RunningWindows final : public LiveSystem {
public:
    Registry& registry() override { return registry_; }
    VersionSource& version() override { return version_; }
    SystemFolders& folders() override { return folders_; }
    Files& files() override { return files_; }

private:
    Win32Registry registry_;
    Win32Version version_;
    Win32Folders folders_;
    Win32Files files_;
};

}  // namespace

std::unique_ptr<LiveSystem> openLiveSystem() { return std::make_unique<RunningWindows>(); }

#else

std::unique_ptr<LiveSystem> openLiveSystem() { return nullptr; }

#endif

}  // namespace korvane
