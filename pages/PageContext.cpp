// The services that show and apply routines share.
#include "pages/PageContext.h"

namespace korvane {

void ListColumns::clear(DialogControls& page, int list) {
    for (; count_ > 0; --count_) {
        page.deleteColumn(list, 0);
    }
    count_ = 0;
}

void ListColumns::insert(DialogControls& page, int list, std::span<const TableColumn> columns) {
    int index = 0;
    for (const TableColumn& column : columns) {
        page.insertColumn(list, index++, column.heading, column.width);
    }
    count_ += index;
}

void PageContext::setText(int control, std::string_view text) {
    page.setText(control, text);
    host.translateControl(page, tweak.id, control);
}

OpenedKey PageContext::openForWriting(const KeyPath& key) {
    OpenedKey opened = openOrCreate(platform.registry, key);
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
