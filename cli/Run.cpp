// Picks the command.
#include "cli/Run.h"

#include "app/KorvaneApp.h"
#include "cli/Commands.h"

#include <variant>

namespace korvane {
namespace {

ExitStatus runCommand(const CommandLine& options, Output& output) {
    switch (options.command) {
        case Command::List: return listCommand(options, output);
        case Command::Show: return showCommand(options, output);
        case Command::Apply: return applyCommand(options, output);
        case Command::CheckSkin: return checkSkinCommand(options, output);
        case Command::Help: output.print(helpText()); break;
        case Command::Version: output.print("kmctl " + std::string(kProgramVersion) + '\n'); break;
    }
    return ExitStatus::Done;
}

}  // namespace

int run(std::span<const std::string> arguments, std::string& out, std::string& err) {
    Output output(out, err);
    const auto parsed = parseCommandLine(arguments);
    const auto* error = std::get_if<UsageError>(&parsed);
    return static_cast<int>(error != nullptr ? output.fail(wrongUsage(error->message))
                                             : runCommand(std::get<CommandLine>(parsed), output));
}

}  // namespace korvane
