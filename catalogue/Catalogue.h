// The whole catalogue: every item by its ItemId, in constant time, and the groups
// of consecutive ItemIds, one for each catalogue module.
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

// The ItemIds in a category's overview, from top to bottom: its own list, or else its child tweaks in the tree.
std::vector<int> overviewItems(const Tweak& category);

// Null for a number that is not an ItemId.
const Tweak* findTweak(int id);

}  // namespace korvane
