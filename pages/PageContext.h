// What a show or apply routine works with: its tweak, its page, the platform, and
// the main window behind a small interface.
#pragma once

#include "pages/Tweak.h"
#include "platform/DialogControls.h"
#include "platform/System.h"

#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// How many columns have been inserted into the lists of the category and check-list pages since they were last cleared.
// Both lists share the count; it belongs to the one that got columns last.
class ListColumns {
public:
    void clear();
    void insert(DialogControls& page, int list, std::string_view heading, int width);

private:
    int count_ = 0;
    DialogControls* page_ = nullptr;
    int list_ = 0;
};

struct OverviewRow {
    std::string name;
    std::string date;  // on which the tweak was last applied
};

// What the main window offers its pages.
class PageHost {
public:
    virtual ~PageHost() = default;

    // False for a page that could not be created; do not call page() for it.
    virtual bool hasPage(Page page) = 0;
    virtual DialogControls& page(Page page) = 0;
    virtual void showApplyButton() = 0;
    // The button's rectangle in the client coordinates of the page.
    virtual Rect applyButtonRect(Page page) = 0;
    // The item's title, ":", a line feed and its description.
    virtual std::string headerText(int id) = 0;
    virtual std::vector<OverviewRow> overviewRows(const Tweak& category) = 0;
    // The language file's text for that key of the item's page or, with kOverviewTexts, of all overviews; the given
    // text if there is none.
    virtual std::string translated(int id, const std::string& key, std::string_view text) = 0;
    virtual void stamp() = 0;
    virtual void alert(Alert alert) = 0;
    virtual ListColumns& listColumns() = 0;
};

constexpr int kOverviewTexts = -1;

class PageContext {
public:
    PageContext(PageHost& pageHost, Platform& system, const Tweak& row)
        : host(pageHost), platform(system), tweak(row), page(pageHost.page(row.page)), version(system.version) {}

    PageHost& host;
    Platform& platform;
    const Tweak& tweak;
    DialogControls& page;
    const COsVersion version;

    bool checked(int control) const { return page.check(control) == 1; }
    // The text in the user's language. Controls are looked up by their id ("1013"), entries of a combo box by id and
    // index ("1021.0"), headings and cells of a table by id, row (from 0; "c" for the heading) and column ("1007.0.1").
    std::string translated(int control, std::string_view text) const;
    std::string translatedEntry(int combo, int index, std::string_view text) const;
    std::string translatedCell(int list, std::string_view row, int column, std::string_view text) const;
    void setText(int control, std::string_view text);  // translated
    // The binding of the box on the running version of Windows.
    const CheckBinding& bindingOf(const CheckBox& box) const;
    // Keys are those of the running version of Windows.
    OpenedKey open(const KeyPath& key) const;
    std::optional<StoredValue> read(const KeyPath& key, std::string_view name) const;
    void remove(const KeyPath& key, std::string_view name) const;  // by the full path; needs no open key
    // Opens a key for writing, and records the date if the tweak does so when a key is open.
    OpenedKey openForWriting(const KeyPath& key);
    OpenedKey openForWriting(const KeyPath* key) { return key == nullptr ? OpenedKey() : openForWriting(*key); }
    void stampBeforeWrite();
};

}  // namespace korvane
