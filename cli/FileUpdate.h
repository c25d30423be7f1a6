// One change of a file, from reading it to writing it back: what another run
// of kmctl writes meanwhile is never lost.
#pragma once

#include "cli/Problem.h"
#include "cli/SideFile.h"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

class FileUpdate {
public:
    // How long it waits for another run to finish.
    explicit FileUpdate(std::chrono::milliseconds patience = std::chrono::seconds(5)) : patience_(patience) {}

    // Reads the file once no other run is changing it, and keeps others from doing so until
    // the commit or the end of this object.
    // Where nothing can be made beside the file it is read all the same, and only the commit fails.
    std::optional<Problem> begin(const std::string& path, std::string& bytes);

    // Replaces what was read. A failure leaves the file as it is.
    std::optional<Problem> commit(std::string_view bytes);

private:
    std::chrono::milliseconds patience_;
    std::string path_;
    SideFile side_;
    bool held_ = false;
    std::optional<FileState> read_;
};

}  // namespace korvane
