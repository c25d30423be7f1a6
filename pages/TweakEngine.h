// The show and apply sequences, once for all rows.
#pragma once

#include "pages/PageContext.h"

namespace korvane {

// Shows the tweak's page: controls visible and labelled, header, every control reset, then the registry read.
void showTweak(PageContext& context);

// Writes the page back: gate, date, required fields, writes.
void applyTweak(PageContext& context);

// The common writes of an apply, for routines that do more beside them.
void writeControls(PageContext& context);

// Fills a category's list of titles and dates.
void showOverview(PageContext& context);

}  // namespace korvane
