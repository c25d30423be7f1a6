// Sets the controls of a page as a person at the window would.
#pragma once

#include "cli/CommandLine.h"
#include "cli/HostText.h"
#include "platform/memory/MemoryDialog.h"

#include <optional>
#include <string>

namespace korvane {

// Why the control cannot be set so, or nothing when it is.
std::optional<std::string> setControl(MemoryDialog& page, const Assignment& assignment, const CodePage& encoding);

// The entries of a combo box with their numbers, for a message; of very many only the first and the last.
std::string entriesOf(const MemoryControl& combo, const CodePage& encoding);

}  // namespace korvane
