// The whole catalogue: every record by its ItemId, in constant time, and the groups that the modules own.
#pragma once

#include "catalogue/Units.h"

#include <span>
#include <string_view>
#include <vector>

namespace korvane {

// The records 0 to 310 stand in groups of consecutive ItemIds; later ones belong to the group of their unit.
struct CatalogueGroup {
    std::string_view name;
    std::span<const Unit* const> units;

    bool owns(int id) const;
};

std::span<const CatalogueGroup> catalogueGroups();

// The ItemIds in a category's overview, from top to bottom: its own list, or else its child tweaks in the tree.
std::vector<int> overviewItems(const Tweak& category);

// Null for a number that is no ItemId.
const Tweak* findTweak(int id);

}  // namespace korvane
