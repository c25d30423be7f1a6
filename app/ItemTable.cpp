// Building and translating the item table.
#include "app/ItemTable.h"

#include "catalogue/Catalogue.h"

namespace korvane {
namespace {

// The section of the item texts is the control id of the tree. A key is the ItemId followed by one of these digits.
constexpr std::string_view kItemsSection = "1004";
constexpr char kIdDigit = '1';
constexpr char kTitleDigit = '2';
constexpr char kDescriptionDigit = '3';

}  // namespace

void ItemTable::build() {
    items_.clear();
    items_.reserve(kItemCount);
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        items_.push_back({std::string(tweak.title), std::string(tweak.description), tweak.image, id});
    }
}

void ItemTable::translate(const LanguageFile& language) {
    for (std::size_t n = 0; n < items_.size(); ++n) {
        // For item 0 too the digit follows the number: "02" is its title.
        const auto lookUp = [&](char digit) { return language.text(kItemsSection, std::to_string(n) + digit); };
        if (const std::string id = lookUp(kIdDigit); !id.empty()) {
            items_[n].id = decimalNumber(id);
        }
        if (std::string title = lookUp(kTitleDigit); !title.empty()) {
            items_[n].title = std::move(title);
        }
        if (std::string description = lookUp(kDescriptionDigit); !description.empty()) {
            items_[n].description = std::move(description);
        }
    }
}

std::vector<std::string> ItemTable::titles() const {
    std::vector<std::string> titles;
    titles.reserve(items_.size());
    for (const TweakItem& item : items_) {
        titles.push_back(item.title);
    }
    return titles;
}

std::string ItemTable::headerText(int id) const {
    if (!contains(id)) {
        return {};
    }
    const TweakItem& item = items_[static_cast<std::size_t>(id)];
    return item.title + ":\n" + item.description;
}

std::string ItemTable::title(int id) const {
    return contains(id) ? items_[static_cast<std::size_t>(id)].title : std::string();
}

}  // namespace korvane
