// The file beside another one that kmctl changes: while one run holds it, no
// other run changes that file, and the new content comes from there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// What tells one state of a file on the disk from another.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t file = 0;  // the file's number on its device
    std::uint64_t size = 0;
    std::int64_t changed = 0;  // when its content was last changed, in the system's smallest unit

    bool operator==(const FileState&) const = default;
};

// Nothing for a file that cannot be found.
std::optional<FileState> stateOf(const std::string& path);

class SideFile {
public:
    enum class Answer {
        Held,
        Busy,        // another run holds it
        Impossible,  // whyNot() tells; the file itself may still be read
    };

    SideFile() = default;
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;
    // Gives the file free; of what was made beside it nothing stays.
    ~SideFile();

    // Tries once. The name follows from the file's, so that all runs meet there; one that nobody holds was left by a
    // run that was killed, and is taken over. A symbolic link is followed.
    Answer hold(const std::string& path);
    const std::string& name() const { return name_; }
    const std::string& whyNot() const { return whyNot_; }

    // Replaces the file in one step, if it is still in that state, and gives it free; for a file that is held. Why it
    // failed, or nothing.
    // Owner, permissions and extended attributes stay, where the system allows it.
    std::optional<std::string> replace(std::string_view bytes, const FileState& expected);

private:
    Answer impossible(std::string reason);
    void release();

    std::string path_;
    std::string target_;  // what is replaced in the end
    std::string name_;
    std::string whyNot_ = "is not held";
    std::intptr_t handle_ = -1;  // a descriptor or a HANDLE
};

// The name of a file beside the target: its own name with the ending, or, where that could become too long, one made
// from a checksum of it.
std::string nameBeside(const std::string& target, std::string_view ending);

inline constexpr const char* kChangedMeanwhile = "was changed by another program meanwhile, so it is left as it is";

}  // namespace korvane
