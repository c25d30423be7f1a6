// How a run of kmctl ends, and why it ends early.
#pragma once

#include <cstdint>
#include <string>

namespace korvane {

enum class ExitStatus : std::uint8_t {
    Done = 0,
    Failed = 1,
    WrongUsage = 2,  // or input that cannot be read
    Refused = 3,     // the program showed an alert
};

struct Problem {
    ExitStatus status = ExitStatus::Failed;
    std::string message;      // one line for a person
    bool hintsAtHelp = false;  // the help says how to do it right
};

inline Problem wrongUsage(std::string message) { return {ExitStatus::WrongUsage, std::move(message), true}; }
inline Problem unreadable(std::string message) { return {ExitStatus::WrongUsage, std::move(message)}; }
inline Problem failure(std::string message) { return {ExitStatus::Failed, std::move(message)}; }

}  // namespace korvane
