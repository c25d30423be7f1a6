// What the arguments of kmctl say. Nothing is looked up here: whether an item,
// a control or a file exists is found out when the command runs.
#pragma once

#include "platform/System.h"
#include "text/CodePage.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace korvane {

enum class Command : std::uint8_t { List, Show, Apply, CheckSkin, Help, Version };

// CONTROL=VALUE, or CONTROL:ROW=VALUE for the check box of a list's row.
struct Assignment {
    int control = 0;
    std::optional<int> row{};
    std::string value{};
};

// Texts are as the system gave them; none of those that are set is empty.
struct CommandLine {
    Command command = Command::Help;
    bool json = false;
    bool all = false;                       // list: the records without a row in the tree too
    std::string item{};                     // show, apply: an ItemId or a title
    std::vector<Assignment> assignments{};  // apply: in the order given
    std::string skinFile{};                 // check-skin: a skin file or a splash file

    std::optional<std::string> registry{};
    std::optional<std::string> programFolder{};
    std::optional<std::string> language{};
    // The system that the .reg file comes from.
    std::optional<CodePage> codePage{};
    std::optional<VersionRecord> windows{};
    std::optional<std::string> windowsFolder{};  // without a trailing backslash
    std::optional<std::string> appDataFolder{};
    std::optional<std::vector<Drive>> drives{};  // by letter
};

struct UsageError {
    std::string message;  // one line
};

// The arguments without the program's name.
std::variant<CommandLine, UsageError> parseCommandLine(std::span<const std::string> arguments);

// The whole of --help.
std::string_view helpText();

// A decimal number without a sign; nothing for any other text and for a number that does not fit.
std::optional<int> wholeNumber(std::string_view text);

// A text in quotation marks, cut where it is very long.
std::string quotedForMessage(std::string_view text);

}  // namespace korvane
