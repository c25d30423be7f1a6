// Which code page the system of a .reg file has. It must be known before the file is read, for the file's own texts
// may be in it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

// The text of the value ACP in HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Control\Nls\CodePage as the file has it;
// nothing when it has none, or none that is a plain text. Any bytes are accepted.
std::optional<std::string> codePageNamedIn(std::string_view bytes);

}  // namespace korvane
