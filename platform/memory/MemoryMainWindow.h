// The main window without a screen: its dialogs are MemoryDialogs, its tree a
// list of rows, its splash and skin engine write down what they are asked. A
// caller acts for the person at the machine: selects a row, presses a button.
#pragma once

#include "platform/MainWindow.h"
#include "platform/memory/MemoryDialog.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

struct MemoryTreeRow {
    CTreeListItem item = kRootItem;
    CTreeListItem parent = kRootItem;
    int depth = 0;  // 0 at the top level
    std::string text{};
    std::uint32_t data = 0;
    bool bold = false;
    int normalImage = -1;
    int selectedImage = -1;
    int expandedImage = -1;
    int expandedSelectedImage = -1;
};

struct MemoryTreeColumn {
    std::string heading{};
    int width = 0;
};

// A picture that is never drawn; it has the size that it is given here.
class MemoryBackgroundImage final : public BackgroundImage {
public:
    std::string path;  // of the last picture asked for
    int width = 0;
    int height = 0;

    void load(const std::string& file, int& pictureWidth, int& pictureHeight) override;
};

class MemoryTree final : public CTreeListCtrl {
public:
    const std::vector<MemoryTreeRow>& rows() const { return rows_; }  // from top to bottom
    const std::vector<MemoryTreeColumn>& columns() const { return columns_; }
    std::uint32_t style() const { return style_; }
    bool hasImageList() const { return hasImageList_; }
    // The first row with that data; null when there is none.
    const MemoryTreeRow* findData(std::uint32_t data) const;
    // Selects without telling anybody. The data need not be that of a row.
    void select(std::uint32_t data) { selectedData_ = data; }

    void SetStyle(std::uint32_t style) override { style_ = style; }
    void SetImageList() override { hasImageList_ = true; }
    void InsertColumn(std::string_view heading, std::uint32_t format, int width, int image, int subItem,
                      int order) override;
    void SetColumnModify(int, int) override {}
    void SetColumnWidth(int column, int width, int minimum, int maximum) override;
    MemoryBackgroundImage& GetBGImage() override { return background_; }

    void DeleteAllItems() override;
    CTreeListItem InsertItem(std::string_view text, CTreeListItem parent, CTreeListItem after) override;
    void SetItemData(CTreeListItem item, std::uint32_t data) override;
    void SetItemBold(CTreeListItem item, bool bold) override;
    void SetItemImage(CTreeListItem item, int normal, int selected, int expanded, int expandedSelected) override;
    bool GetSelectedItemData(std::uint32_t& data) override;

private:
    MemoryTreeRow* find(CTreeListItem item);
    std::size_t endOfSubtree(std::size_t index) const;

    std::vector<MemoryTreeRow> rows_;
    std::vector<MemoryTreeColumn> columns_;
    std::uint32_t style_ = 0;
    bool hasImageList_ = false;
    std::optional<std::uint32_t> selectedData_;
    CTreeListItem lastItem_ = kRootItem;
    MemoryBackgroundImage background_;
};

struct SkinCall {
    enum class Verb { LoadSkin, ApplySkin, ApplySkinElement };
    Verb verb = Verb::LoadSkin;
    std::string path{};                 // LoadSkin
    DialogControls* dialog = nullptr;   // the two others
    int controlId = 0;                  // ApplySkinElement
    std::string element{};              // ApplySkinElement
};

class ScriptedSkinEngine final : public ISkinEngine {
public:
    const std::vector<SkinCall>& calls() const { return calls_; }
    // Refuses the n-th call from the start, counted from 1, and no other; 0 refuses none.
    void refuseCall(std::size_t number) { refused_ = number; }

    Hresult LoadSkin(const std::string& path) override;
    Hresult ApplySkin(DialogControls& mainWindow) override;
    Hresult ApplySkinElement(DialogControls& dialog, int controlId, std::string_view element) override;

private:
    Hresult record(SkinCall call);

    std::vector<SkinCall> calls_;
    std::size_t refused_ = 0;
};

class MemorySplash final : public SplashWindow {
public:
    std::string file;
    std::int32_t minimumTime = 0;
    int timesShown = 0;
    bool waited = false;  // the last time it was shown

    void setFile(const std::string& path) override { file = path; }
    void setMinimumTime(std::int32_t milliseconds) override { minimumTime = milliseconds; }
    void showSplash(bool wait) override;
};

class MemoryMainWindow final : public MainWindow {
public:
    struct SystemMenuItem {
        int commandId = 0;
        std::string text{};
    };
    struct TreeImage {
        int bitmapResource = 0;
        Colour mask = 0;
    };

    MemoryMainWindow();

    // Shows the window and lets the handler initialise it. False when the window has ended already; the handler, which
    // outlives the window, has then been told of its end.
    bool run(MainWindowHandler& handler);
    bool running() const { return running_; }

    // User actions. Those that answer false could not be done.
    // Selecting tells the handler also when the row is selected already, so that its page is read afresh.
    bool selectRow(std::size_t index);
    // Selects the first row with that data. Data that no row carries is selected all the same, so that a tweak without
    // a row in the tree can be reached as well.
    bool selectData(std::uint32_t data);
    bool clickApply();
    bool chooseSystemMenu(int commandId);
    bool pressFrameButton(const std::string& name);  // of the skin's frame
    // Drags the divider so many pixels to the right, or as far as its range allows.
    bool dragDivider(int distance);
    bool close();

    // Null when no page was made from that template.
    MemoryDialog* page(int templateId);
    MemoryDialog& dialog() { return dialog_; }
    // The About box as it was last shown; null before.
    const MemoryDialog* aboutBox() const { return aboutBox_.get(); }
    const std::vector<SystemMenuItem>& systemMenu() const { return systemMenu_; }
    const std::vector<TreeImage>& images() const { return images_; }
    int iconResource() const { return iconResource_; }
    int imageSize() const { return imageSize_; }
    int timesRedrawn() const { return timesRedrawn_; }
    const Rect& dividerRect() const { return dividerRect_; }
    void offerSkinEngine(bool offered) { skinOffered_ = offered; }

    DialogControls& controls() override { return dialog_; }
    MemoryTree& tree() override { return tree_; }
    MemorySplash& splash() override { return splash_; }
    ScriptedSkinEngine* skinEngine() override { return skinOffered_ ? &skin_ : nullptr; }
    void appendSystemMenu(int commandId, std::string_view text) override;
    void setIcons(int resourceId) override { iconResource_ = resourceId; }
    void createImageList(int size, int initialImages, int growth) override;
    void addImage(int bitmapResource, Colour mask) override;
    void createDivider(int controlId, int rangeLeft, int rangeRight) override;
    void createPage(int templateId, DialogHandler& handler) override;
    void runAboutBox(DialogHandler& handler) override;
    void redrawAll() override { ++timesRedrawn_; }
    // Closes the window once the handler has returned from what it is told at the moment.
    void postClose() override { closePosted_ = true; }
    void sendShowHelp() override { handler_->OnHelp(); }

private:
    // Passes the window's own button on.
    class Clicks final : public DialogHandler {
    public:
        explicit Clicks(MemoryMainWindow& window) : window_(window) {}
        bool OnInitDialog(DialogControls&) override { return true; }
        void OnClicked(int id) override;

    private:
        MemoryMainWindow& window_;
    };

    void settle();

    MainWindowHandler* handler_ = nullptr;
    bool running_ = false;
    bool closePosted_ = false;
    Clicks clicks_{*this};
    MemoryDialog dialog_;
    MemoryTree tree_;
    MemorySplash splash_;
    ScriptedSkinEngine skin_;
    bool skinOffered_ = true;
    std::vector<std::unique_ptr<MemoryDialog>> pages_;
    std::unique_ptr<MemoryDialog> aboutBox_;
    std::vector<SystemMenuItem> systemMenu_;
    std::vector<TreeImage> images_;
    int iconResource_ = 0;
    int imageSize_ = 0;
    int timesRedrawn_ = 0;
    Rect dividerRect_;
    int roomLeft_ = 0;  // how far the divider can still be dragged
    int roomRight_ = 0;
};

}  // namespace korvane
