// What the running Windows says of itself: version, clock, folders and drives.
#pragma once

#include "platform/System.h"

#include <cstdint>
#include <string>
#include <vector>

namespace korvane {

class Win32Version final : public VersionSource {
public:
    bool getVersion(VersionRecord& record) override;
};

class Win32Clock final : public Clock {
public:
    UtcDate utcDate() override;
    std::uint32_t seed() override;
};

class Win32Folders final : public SystemFolders {
public:
    std::string windowsFolder() override;
    std::string applicationDataFolder() override;
    std::vector<Drive> logicalDrives() override;
};

}  // namespace korvane
