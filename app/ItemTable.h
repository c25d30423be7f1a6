// The item table: title, description and id of every item. It is built once from
// the catalogue; a language file may replace the texts, and then it no longer
// changes.
#pragma once

#include "lang/LanguageFile.h"

#include <cstdint>
#include <string>
#include <vector>

namespace korvane {

struct TweakItem {
    std::string title;
    std::string description;
    std::int32_t image;
    std::int32_t id;  // the index in the table, unless a language file says otherwise
};

class ItemTable {
public:
    // Appends the 311 items in ItemId order.
    void build();
    // Replaces ids, titles and descriptions. Intended: an id that is not a number becomes 0, so that the item is
    // dispatched as ItemId 0.
    void translate(const LanguageFile& language);

    std::size_t size() const { return items_.size(); }
    const TweakItem& operator[](std::size_t id) const { return items_[id]; }
    std::vector<std::string> titles() const;
    // Title, ":", line feed, description; empty for a number that is not an ItemId.
    std::string headerText(int id) const;
    std::string title(int id) const;

private:
    bool contains(int id) const { return id >= 0 && static_cast<std::size_t>(id) < items_.size(); }

    std::vector<TweakItem> items_;
};

}  // namespace korvane
