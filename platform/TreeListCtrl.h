// The control of the category tree: a tree with one column and a heading.
#pragma once

#include "platform/DialogControls.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace korvane {

// A row of the tree. The two constants stand for the parent of the top-level rows and for the place after the last
// child.
using CTreeListItem = std::uintptr_t;
constexpr CTreeListItem kRootItem = 0;
constexpr CTreeListItem kInsertLast = ~CTreeListItem{0};

struct TreeColumn {
    std::string_view heading;
    std::uint32_t format = 0;
    int width = 0;   // pixels
    int image = -1;  // none
    int subItem = 0;
    int order = 0;
};

// A picture that the control owns and draws behind its rows.
class BackgroundImage {
public:
    virtual ~BackgroundImage() = default;
    // Loads the picture and sets its size in pixels. With a missing or damaged file the background stays plain; nothing
    // is reported.
    virtual void load(const std::string& path, int& width, int& height) = 0;
};

class CTreeListCtrl {
public:
    virtual ~CTreeListCtrl() = default;

    virtual void SetStyle(std::uint32_t style) = 0;
    virtual void SetImageList() = 0;  // the main window's image list
    virtual void InsertColumn(const TreeColumn& column) = 0;
    virtual void SetColumnModify(int column, int modify) = 0;
    virtual void SetColumnWidth(int column, int width, int minimum, int maximum) = 0;
    virtual BackgroundImage& GetBGImage() = 0;

    virtual void DeleteAllItems() = 0;
    virtual CTreeListItem InsertItem(std::string_view text, CTreeListItem parent, CTreeListItem after) = 0;
    virtual void SetItemData(CTreeListItem item, std::uint32_t data) = 0;
    virtual void SetItemBold(CTreeListItem item, bool bold) = 0;
    virtual void SetItemImage(CTreeListItem item, int normal, int selected, int expanded, int expandedSelected) = 0;

    // Returns the data of the selected row. False if none is selected.
    virtual bool GetSelectedItemData(std::uint32_t& data) = 0;
};

}  // namespace korvane
