// The date file as several kmctl write it at once: locked from when it is
// opened until it is replaced, and replaced whole, so that it is always either
// the old file or the new one.
#pragma once

#include "cli/ProgramFolder.h"
#include "platform/System.h"

#include <memory>
#include <string>

namespace korvane {

class LockedFiles final : public Files {
public:
    // The folder is borrowed. Paths are the program's, and begin with it.
    explicit LockedFiles(const ProgramFolder& folder) : folder_(folder) {}

    // Both wait up to five seconds for another kmctl, and answer null when it is not done by then. A file can be
    // rewritten once: then it is no longer locked.
    std::unique_ptr<File> openExisting(const std::string& path) override;
    // Does not empty the file: it keeps its content until it is rewritten. Null as well for a file with content that was
    // never opened here: what could not be read is not to be lost.
    std::unique_ptr<File> createAlways(const std::string& path) override;

private:
    const ProgramFolder& folder_;
    bool opened_ = false;
};

}  // namespace korvane
