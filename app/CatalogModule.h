// A catalogue module: one of the eleven groups of the catalogue, with the show
// and apply routines of its items.
#pragma once

#include "catalogue/Catalogue.h"
#include "pages/PageContext.h"

namespace korvane {

class CCatalogModule {
public:
    CCatalogModule(const CatalogueGroup& group, PageHost& host, Platform& platform)
        : group_(group), host_(host), platform_(platform) {}

    bool owns(int id) const { return group_.owns(id); }
    // Shows the item's page; does nothing for an item without one.
    void Show(int id);
    // Applies the page that Show filled; does nothing for an item that cannot be applied.
    void Apply(int id);

private:
    const CatalogueGroup& group_;
    PageHost& host_;
    Platform& platform_;
};

}  // namespace korvane
