// What a run prints. Whatever its texts came from, nothing but printable
// characters and line feeds leaves through here.
#pragma once

#include "cli/Json.h"
#include "cli/Problem.h"

#include <string>
#include <string_view>

namespace korvane {

// Texts are in this system's encoding.
class Output {
public:
    // Both are borrowed and appended to.
    Output(std::string& out, std::string& err) : out_(out), err_(err) {}

    // Lines on standard output, each with its line feed.
    void print(std::string_view lines);
    void print(const JsonWriter& json);
    // One line for a person on standard error; the second says whose line it is.
    void complain(std::string_view line);
    void note(std::string_view message);
    // Notes the problem and answers its exit status.
    ExitStatus fail(const Problem& problem);

private:
    std::string& out_;
    std::string& err_;
};

}  // namespace korvane
