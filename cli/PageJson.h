// A page as a JSON object, for scripts.
#pragma once

#include "cli/HostText.h"
#include "cli/Json.h"
#include "cli/Session.h"

namespace korvane {

// Writes the object of `show`.
void writePage(JsonWriter& json, const PageView& view, const CodePage& encoding);

}  // namespace korvane
