// The services that show and apply routines share.
#include "pages/PageContext.h"

namespace korvane {

void ListColumns::clear() {
    for (; count_ > 0; --count_) {
        page_->deleteColumn(list_, 0);
    }
}

void ListColumns::insert(DialogControls& page, int list, std::string_view heading, int width) {
    page_ = &page;
    list_ = list;
    page.insertColumn(list, count_, heading, width);
    ++count_;
}

std::string PageContext::translated(int control, std::string_view text) const {
    return host.translated(tweak.id, std::to_string(control), text);
}

std::string PageContext::translatedEntry(int combo, int index, std::string_view text) const {
    const bool number = text.find_first_not_of("0123456789") == std::string_view::npos;
    return number ? std::string(text)
                  : host.translated(tweak.id, std::to_string(combo) + "." + std::to_string(index), text);
}

std::string PageContext::translatedCell(int list, std::string_view row, int column, std::string_view text) const {
    const std::string key = std::to_string(list) + "." + std::string(row) + "." + std::to_string(column);
    return host.translated(tweak.isCategory() ? kOverviewTexts : tweak.id, key, text);
}

void PageContext::setText(int control, std::string_view text) { page.setText(control, translated(control, text)); }

const CheckBinding& PageContext::bindingOf(const CheckBox& box) const {
    for (const VersionedBinding& versioned : box.onVersions) {
        if (versioned.on.contains(version)) {
            return versioned.binding;
        }
    }
    return box.binding;
}

OpenedKey PageContext::open(const KeyPath& key) const {
    return openKey(platform.registry, key.root, key.on(version).fullPath());
}

std::optional<StoredValue> PageContext::read(const KeyPath& key, std::string_view name) const {
    const OpenedKey opened = open(key);
    return opened ? readValue(platform.registry, opened.handle(), name) : std::nullopt;
}

void PageContext::remove(const KeyPath& key, std::string_view name) const {
    deleteValue(platform.registry, key.on(version), name);
}

OpenedKey PageContext::openForWriting(const KeyPath& key) {
    OpenedKey opened = openOrCreate(platform.registry, key.on(version));
    if (opened) {
        stampBeforeWrite();
    }
    return opened;
}

void PageContext::stampBeforeWrite() {
    if (tweak.stamp == Stamp::WhenOpen) {
        host.stamp();
    }
}

}  // namespace korvane
