// The running Windows as kmctl uses it; elsewhere there is none.
#pragma once

#include "platform/Registry.h"
#include "platform/System.h"

#include <memory>

namespace korvane {

class LiveSystem {
public:
    virtual ~LiveSystem() = default;
    virtual Registry& registry() = 0;
    virtual VersionSource& version() = 0;
    virtual SystemFolders& folders() = 0;
    virtual Files& files() = 0;
};

// Null where the running system has no registry.
std::unique_ptr<LiveSystem> openLiveSystem();

}  // namespace korvane
