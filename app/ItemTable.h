// The item table: what the program knows of every category and tweak by its
// ItemId. Built once from the catalogue's texts; a language file may replace
// titles, descriptions and ids; then it stays as it is.
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
    std::int32_t id;  // the record's position, unless a language file says otherwise
};

class ItemTable {
public:
    // Appends the 311 records in ItemId order.
    void build();
    // Replaces ids, titles and descriptions. An id that is not a number becomes 0, so that every dispatch of the
    // record goes to ItemId 0: meant so.
    void translate(const LanguageFile& language);

    std::size_t size() const { return items_.size(); }
    const TweakItem& operator[](std::size_t id) const { return items_[id]; }
    std::vector<std::string> titles() const;
    // Title, ":", line feed, description; empty for a number outside the table.
    std::string headerText(int id) const;
    std::string title(int id) const;

private:
    bool contains(int id) const { return id >= 0 && static_cast<std::size_t>(id) < items_.size(); }

    std::vector<TweakItem> items_;
};

}  // namespace korvane
