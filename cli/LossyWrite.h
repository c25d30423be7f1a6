// Saying why a registry file is not written back: the program wrote a text that the file's code page does not hold.
#pragma once

#include "platform/memory/MemoryDialog.h"
#include "regfile/LostLetters.h"
#include "text/CodePage.h"

#include <optional>
#include <string>

namespace korvane {

// Why nothing may be written: which controls of the page, or else which values, have lost which letters, and what to do
// about it. Nothing when no text was kept from being written.
std::optional<std::string> whyLossy(const LostLetters& lost, const MemoryDialog* page, const CodePage& encoding);

}  // namespace korvane
