// Waiting, reading and the name beside the file; the rest is each system's own.
#include "cli/FileUpdate.h"

#include "cli/InputFile.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <ctime>
#endif

namespace korvane {
namespace {

// With an ending, longer names could reach the limit of a file system (as low as 143 bytes).
constexpr std::size_t kLongestOwnName = 100;

constexpr std::chrono::milliseconds kMoment{20};

void sleepBriefly() {
#ifdef _WIN32
    Sleep(static_cast<DWORD>(kMoment.count()));
#else
    const timespec moment{.tv_sec = 0, .tv_nsec = static_cast<long>(kMoment.count()) * 1'000'000};
    nanosleep(&moment, nullptr);
#endif
}

// FNV-1a, 64 bits.
std::string checksum(std::string_view text) {
    std::uint64_t sum = 0xcbf29ce484222325;
    for (const char c : text) {
        sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001b3;
    }
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4) {
        digits += "0123456789abcdef"[sum >> shift & 0xF];
    }
    return digits;
}

}  // namespace

std::string nameBeside(const std::string& target, std::string_view ending) {
#ifdef _WIN32
    const std::size_t end = target.find_last_of("\\/:");
#else
    const std::size_t end = target.rfind('/');
#endif
    const std::size_t start = end == std::string::npos ? 0 : end + 1;
    const std::string name = target.substr(start);
    return target.substr(0, start) + (name.size() > kLongestOwnName ? "kmctl-" + checksum(name) : name) +
           std::string(ending);
}

std::optional<Problem> FileUpdate::begin(const std::string& path, std::string& bytes) {
    path_ = path;
    SideFile::Answer answer = side_.hold(path);
    for (auto left = patience_; answer == SideFile::Answer::Busy && left > left.zero(); left -= kMoment) {
        sleepBriefly();
        answer = side_.hold(path);
    }
    if (answer == SideFile::Answer::Busy) {
        return failure(path + ": another kmctl is changing it, " + side_.name() + " is not free: try again later");
    }
    held_ = answer == SideFile::Answer::Held;
    // Taken before the content is read: a change in between is then noticed as well.
    read_ = stateOf(path);
    if (const std::optional<std::string> reason = readInputFile(path, bytes)) {
        return unreadable(path + ": " + *reason);
    }
    return std::nullopt;
}

std::optional<Problem> FileUpdate::commit(std::string_view bytes) {
    const std::optional<std::string> reason =
        !held_ ? side_.whyNot() : read_ ? side_.replace(bytes, *read_) : std::optional<std::string>(kChangedMeanwhile);
    return reason ? std::optional(failure(path_ + ": " + *reason)) : std::nullopt;
}

}  // namespace korvane
