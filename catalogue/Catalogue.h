// The whole catalogue: every record by its ItemId, in constant time, and the
// groups of consecutive ItemIds that the modules own.
#pragma once

#include "catalogue/Units.h"

#include <span>
#include <string_view>
#include <vector>

namespace korvane {

struct CatalogueGroup {
    std::string_view name;
    int first;  // ItemIds, inclusive
    int last;
    std::span<const Unit* const> units;
};

std::span<const CatalogueGroup> catalogueGroups();

// The ItemIds that a category's overview lists, from top to bottom: its own list, or the tweaks right below it in the
// tree.
std::vector<int> overviewItems(const Tweak& category);

// Null for a number outside 0 to 310.
const Tweak* findTweak(int id);

}  // namespace korvane
