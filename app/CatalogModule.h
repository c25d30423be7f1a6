// A catalogue module: one of the eleven groups of consecutive ItemIds, with the
// show and apply routines of its items.
#pragma once

#include "catalogue/Catalogue.h"
#include "pages/PageContext.h"

namespace korvane {

class CCatalogModule {
public:
    CCatalogModule(const CatalogueGroup& group, PageHost& host, Platform& platform)
        : first_(group.first), last_(group.last), host_(host), platform_(platform) {}

    bool owns(int id) const { return id >= first_ && id <= last_; }
    // Shows the item's page; does nothing for an item without one.
    void Show(int id);
    // Applies the page that Show filled; does nothing for an item that cannot be applied.
    void Apply(int id);

private:
    int first_;
    int last_;
    PageHost& host_;
    Platform& platform_;
};

}  // namespace korvane
