// Reading the arguments one after the other.
#include "cli/CommandLine.h"

#include "platform/memory/MemorySystem.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace korvane {
namespace {

constexpr std::size_t kQuotedInMessage = 100;
// The program asks for the Windows folder with a buffer of 100 bytes.
constexpr std::size_t kLongestWindowsFolder = 99;

constexpr std::string_view kHelp = R"(Usage: kmctl [OPTION ...] COMMAND

Shows and changes the settings that Korvane Manager offers, without its window:
in the registry of the running Windows, or on any system in a .reg file.

Commands:
  list                 Lists the items that the tree shows: ItemId, category or
                       tweak, title.
  show ITEM            Selects an item and prints its page.
  apply ITEM [CONTROL=VALUE ...]
                       Selects an item, sets controls of its page in the order
                       given, presses "Apply Changes" and says what happened.
  check-skin FILE      Reads a skin file, or a splash file (.spl), and the
                       pictures beside it, and names its mistakes by line.

ITEM is an ItemId or a title. CONTROL is a control's number, as show prints it:
  1013=1               sets a check box (0 clears it)
  1015=TEXT            types a text into an edit field
  1021=#2              picks an entry of a combo box, counted from 0 (#-1: none)
  1021=TEXT            picks the entry of that text
  1007=#3              selects a row of a list
  1009:3=1             sets the check box of a list's row

Options, before or behind the command:
  --registry FILE      Works on this .reg file; apply writes it back, and waits
                       up to 5 seconds for another kmctl that is changing it.
  --windows NAME       The Windows that the file comes from: 95, 98, me, nt4,
                       2000, xp, 2003 or vista (xp)
  --windows-folder DIR     its Windows folder (C:\WINDOWS)
  --appdata-folder DIR     its user's application data folder
                       (C:\Documents and Settings\user\Application Data)
  --code-page N        the number of its code page, such as 1251 (the one that
                       the file names as its system's, else 1252)
  --drives LIST        its drives (A:removable,C:fixed,D:cdrom); the kinds are
                       removable, fixed, remote, cdrom and ramdisk
  --program-folder DIR Korvane Manager's folder, with its dates and language
                       files; without it dates are not kept
  --language NAME      Uses Language\NAME.ini of the program folder; English
                       needs no file.
  --all                list: includes the records that have no row in the tree.
  --json               Prints one JSON object.
  --help               Prints this.
  --version            Prints the version.
  --                   What follows is no option.

The exit status is 0 when done, 1 when it failed or a write was denied, 2 for
wrong usage or unreadable input, 3 when the program refused with an alert. A key
that does not exist is no failure, but named, as is what was not written.
)";

struct DriveKind {
    std::string_view name;
    std::uint32_t type;
};

constexpr DriveKind kDriveKinds[] = {{"removable", 2}, {"fixed", 3}, {"remote", 4}, {"cdrom", 5}, {"ramdisk", 6}};

// What an option answers: why it cannot take the value; empty when it has taken it.
using Reason = std::string;

template <std::optional<std::string> CommandLine::*Member>
Reason takeText(CommandLine& line, const std::string& value) {
    line.*Member = value;
    return {};
}

Reason takeWindows(CommandLine& line, const std::string& value) {
    line.windows = versionNamed(value);
    return line.windows ? Reason() : "knows 95, 98, me, nt4, 2000, xp, 2003 and vista, not " + quotedForMessage(value);
}

Reason takeCodePage(CommandLine& line, const std::string& value) {
    const std::optional<int> number = wholeNumber(value);
    line.codePage = number ? CodePage::open(static_cast<unsigned>(*number)) : std::nullopt;
    if (!number) {
        return "takes the number of a code page, such as 1251, not " + quotedForMessage(value);
    }
    return line.codePage ? Reason() : "names the page " + value + ", which is not known here";
}

Reason takeWindowsFolder(CommandLine& line, const std::string& value) {
    line.windowsFolder = value.substr(0, value.find_last_not_of('\\') + 1);
    if (line.windowsFolder->empty() || line.windowsFolder->size() > kLongestWindowsFolder) {
        return "takes a folder's path of up to 99 characters";
    }
    return {};
}

// One part of the list, "C:fixed".
std::optional<Drive> driveOf(std::string_view part) {
    if (part.size() < 2 || part[1] != ':') {
        return std::nullopt;
    }
    const char letter = part[0] >= 'a' && part[0] <= 'z' ? static_cast<char>(part[0] - 'a' + 'A') : part[0];
    const auto* kind = std::ranges::find(kDriveKinds, part.substr(2), &DriveKind::name);
    if (letter < 'A' || letter > 'Z' || kind == std::end(kDriveKinds)) {
        return std::nullopt;
    }
    return Drive{std::string{letter, ':', '\\'}, kind->type};
}

Reason takeDrives(CommandLine& line, const std::string& value) {
    std::vector<Drive>& drives = line.drives.emplace();
    for (std::size_t start = 0; start <= value.size();) {
        const std::size_t end = std::min(value.find(',', start), value.size());
        const std::string part = value.substr(start, end - start);
        const std::optional<Drive> drive = driveOf(part);
        if (!drive) {
            return "takes a list like A:removable,C:fixed,D:cdrom, in which " + quotedForMessage(part) + " is no drive";
        }
        if (std::ranges::find(drives, drive->root, &Drive::root) != drives.end()) {
            return "names the drive " + drive->root.substr(0, 2) + " twice";
        }
        drives.push_back(*drive);
        start = end + 1;
    }
    std::ranges::sort(drives, {}, &Drive::root);  // the order in which Windows names them
    return {};
}

struct ValueOption {
    std::string_view name;
    Reason (*take)(CommandLine& line, const std::string& value);
};

constexpr ValueOption kValueOptions[] = {
    {"--registry", takeText<&CommandLine::registry>},
    {"--program-folder", takeText<&CommandLine::programFolder>},
    {"--language", takeText<&CommandLine::language>},
    {"--windows", takeWindows},
    {"--code-page", takeCodePage},
    {"--windows-folder", takeWindowsFolder},
    {"--appdata-folder", takeText<&CommandLine::appDataFolder>},
    {"--drives", takeDrives},
};

struct CommandName {
    std::string_view name;
    Command command;
};

constexpr CommandName kCommands[] = {{"list", Command::List},
                                     {"show", Command::Show},
                                     {"apply", Command::Apply},
                                     {"check-skin", Command::CheckSkin}};

class Parser {
public:
    explicit Parser(std::span<const std::string> arguments) : arguments_(arguments) {}

    std::variant<CommandLine, UsageError> run() {
        if (!readArguments()) {
            return UsageError{std::move(error_)};
        }
        return std::move(line_);
    }

private:
    // Every function that returns bool answers false after it has set the error.
    bool fail(std::string message) {
        error_ = std::move(message);
        return false;
    }

    // Asking for help or for the version ends the reading: the rest does not matter then.
    bool readArguments() {
        bool optionsEnded = false;
        for (; at_ < arguments_.size(); ++at_) {
            const std::string& argument = arguments_[at_];
            if (optionsEnded || !argument.starts_with('-')) {
                words_.push_back(argument);
            } else if (argument == "--help" || argument == "--version") {
                line_.command = argument == "--help" ? Command::Help : Command::Version;
                return true;
            } else if (argument == "--") {
                optionsEnded = true;
            } else if (!readOption(argument)) {
                return false;
            }
        }
        return readCommand() && checkOptions();
    }

    bool readOption(const std::string& argument) {
        if (argument == "--json" || argument == "--all") {
            (argument == "--json" ? line_.json : line_.all) = true;
            return true;
        }
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        const auto* option = std::ranges::find(kValueOptions, name, &ValueOption::name);
        if (option == std::end(kValueOptions)) {
            return fail("there is no option " + quotedForMessage(name));
        }
        if (std::ranges::find(given_, option) != given_.end()) {
            return fail(name + " is given twice");
        }
        given_.push_back(option);
        if (equals == std::string::npos && at_ + 1 == arguments_.size()) {
            return fail(name + " needs a value");
        }
        const std::string value = equals == std::string::npos ? arguments_[++at_] : argument.substr(equals + 1);
        if (value.empty()) {
            return fail(name + " needs a value");
        }
        const Reason reason = option->take(line_, value);
        return reason.empty() || fail(name + ' ' + reason);
    }

    bool readCommand() {
        if (words_.empty()) {
            return fail("a command is missing: list, show, apply or check-skin");
        }
        const auto* found = std::ranges::find(kCommands, words_[0], &CommandName::name);
        if (found == std::end(kCommands)) {
            return fail("there is no command " + quotedForMessage(words_[0]));
        }
        line_.command = found->command;
        const std::size_t expected = line_.command == Command::List ? 1 : 2;
        if (words_.size() < expected || words_[expected - 1].empty()) {
            return fail(words_[0] + (line_.command == Command::CheckSkin ? " needs a file: a skin or a splash"
                                                                         : " needs an item: its ItemId or its title"));
        }
        if (line_.command != Command::Apply && words_.size() > expected) {
            return fail("unexpected argument " + quotedForMessage(words_[expected]));
        }
        if (expected == 2) {
            (line_.command == Command::CheckSkin ? line_.skinFile : line_.item) = words_[1];
        }
        return readAssignments();
    }

    bool readAssignments() {
        for (std::size_t i = 2; i < words_.size(); ++i) {
            const std::string_view word = words_[i];
            const std::size_t equals = word.find('=');
            const std::string_view target = word.substr(0, std::min(equals, word.size()));
            const std::size_t colon = target.find(':');
            const std::optional<int> control = wholeNumber(target.substr(0, colon));
            std::optional<int> row;
            if (colon != std::string_view::npos) {
                row = wholeNumber(target.substr(colon + 1));
            }
            if (equals == std::string_view::npos || !control || (colon != std::string_view::npos && !row)) {
                return fail(quotedForMessage(word) + " is not CONTROL=VALUE or CONTROL:ROW=VALUE");
            }
            line_.assignments.push_back({*control, row, std::string(word.substr(equals + 1))});
        }
        return true;
    }

    bool checkOptions() {
        if (line_.all && line_.command != Command::List) {
            return fail("--all belongs to list");
        }
        if (line_.command == Command::CheckSkin && !given_.empty()) {
            return fail(std::string(given_.front()->name) + " does not belong to check-skin");
        }
        if (line_.language && !line_.programFolder) {
            return fail("--language needs --program-folder, where the language files are");
        }
        for (const auto& [given, name] : {std::pair{line_.windows.has_value(), "--windows"},
                                          std::pair{line_.codePage.has_value(), "--code-page"},
                                          std::pair{line_.windowsFolder.has_value(), "--windows-folder"},
                                          std::pair{line_.appDataFolder.has_value(), "--appdata-folder"},
                                          std::pair{line_.drives.has_value(), "--drives"}}) {
            if (given && !line_.registry) {
                return fail(std::string(name) + " needs --registry, the file of that system");
            }
        }
        return true;
    }

    std::span<const std::string> arguments_;
    std::size_t at_ = 0;
    std::vector<std::string> words_;  // what is no option
    std::vector<const ValueOption*> given_;
    CommandLine line_;
    std::string error_;
};

}  // namespace

std::variant<CommandLine, UsageError> parseCommandLine(std::span<const std::string> arguments) {
    return Parser(arguments).run();
}

std::string_view helpText() { return kHelp; }

std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    const bool whole = error == std::errc() && stopped == end && !text.starts_with('-');
    return whole ? std::optional(number) : std::nullopt;
}

std::string quotedForMessage(std::string_view text) {
    std::size_t length = std::min(text.size(), kQuotedInMessage);
    // Not in the middle of a letter of UTF-8.
    for (int step = 0; step < 3 && length < text.size() && (text[length] & 0xC0) == 0x80; ++step) {
        --length;
    }
    std::string quoted = "\"";
    quoted += text.substr(0, length);
    return quoted += text.size() > length ? "...\"" : "\"";
}

}  // namespace korvane
