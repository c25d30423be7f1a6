// The show sequence and the apply sequence, for all tweaks.
#pragma once

#include "pages/PageContext.h"

namespace korvane {

// Shows the tweak's page: makes controls visible, sets labels and header, resets every control, then reads the
// registry.
void showTweak(PageContext& context);

// Writes the page to the registry: gate, date, required fields, writes.
void applyTweak(PageContext& context);

// The common writes of an apply, for routines that do more besides.
void writeControls(PageContext& context);

// Fills the list of titles and dates of a category.
void showOverview(PageContext& context);

}  // namespace korvane
