// The main window without a screen: its dialogs are MemoryDialogs, its tree a
// list of rows; what is only to be seen is written down, a line for each call.
// A caller acts for the person at the machine: selects a row, presses a button.
#pragma once

#include "platform/MainWindow.h"
#include "platform/memory/MemoryDialog.h"

#include <array>
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
    std::array<int, 4> images{-1, -1, -1, -1};  // normal, selected, expanded, expanded and selected
};

// What the window and its parts were asked for, in that order: "divider 1053 50 10". Calls that leave a state behind
// which can be looked at (rows of the tree, controls of a dialog) are not in it.
using CallLog = std::vector<std::string>;

// A picture that is never drawn.
class MemoryBackgroundImage final : public BackgroundImage {
public:
    explicit MemoryBackgroundImage(CallLog& log) : log_(log) {}

    void load(const std::string& path, int& width, int& height) override;

private:
    CallLog& log_;
};

class MemoryTree final : public CTreeListCtrl {
public:
    explicit MemoryTree(CallLog& log) : log_(log), background_(log) {}

    const std::vector<MemoryTreeRow>& rows() const { return rows_; }  // from top to bottom
    // The first row with that data; null if there is none.
    const MemoryTreeRow* findData(std::uint32_t data) const;
    // Selects without any notification. The data need not be that of a row.
    void select(std::uint32_t data) { selectedData_ = data; }

    void SetStyle(std::uint32_t style) override;
    void SetImageList() override;
    void InsertColumn(const TreeColumn& column) override;
    void SetColumnModify(int column, int modify) override;
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

    CallLog& log_;
    std::vector<MemoryTreeRow> rows_;
    std::optional<std::uint32_t> selectedData_;
    CTreeListItem lastItem_ = kRootItem;
    MemoryBackgroundImage background_;
};

class ScriptedSkinEngine final : public ISkinEngine {
public:
    explicit ScriptedSkinEngine(CallLog& log) : log_(log) {}

    int callCount() const { return callCount_; }
    // Refuses only the n-th call, counted from 1; 0 refuses none.
    void refuseCall(int number) { refused_ = number; }

    Hresult LoadSkin(const std::string& path) override;
    Hresult ApplySkin(DialogControls& mainWindow) override;
    Hresult ApplySkinElement(DialogControls& dialog, int controlId, std::string_view element) override;

private:
    Hresult answer(std::string call);

    CallLog& log_;
    int callCount_ = 0;
    int refused_ = 0;
};

class MemorySplash final : public SplashWindow {
public:
    explicit MemorySplash(CallLog& log) : log_(log) {}

    void setFile(const std::string& path) override;
    void setMinimumTime(std::int32_t milliseconds) override;
    void showSplash(bool wait) override;
    void hide() override;

private:
    CallLog& log_;
};

class MemoryMainWindow final : public MainWindow {
public:
    struct SystemMenuItem {
        int commandId = 0;  // 0: a separator
        std::string text{};
    };

    MemoryMainWindow();
    MemoryMainWindow(const MemoryMainWindow&) = delete;
    MemoryMainWindow& operator=(const MemoryMainWindow&) = delete;

    // Shows the window and lets the handler initialise it. False if the window has already ended; the handler, which
    // must outlive the window, has then been told.
    bool run(MainWindowHandler& handler);
    bool running() const { return running_; }

    // User actions; they return false if they are not possible. Selecting a selected row again also tells the handler,
    // so that its page is read again.
    bool selectRow(std::size_t index);
    // Selects the first row with that data. Data without a row is selected too, so that tweaks outside the tree can be
    // reached.
    bool selectData(std::uint32_t data);
    bool clickApply();
    bool chooseSystemMenu(int commandId);
    bool pressFrameButton(const std::string& name);  // of the skin's frame
    // Drags the splitter so many pixels to the right, or as far as its range allows.
    bool dragDivider(int distance);
    bool close();

    // Null if there is no page from that template.
    MemoryDialog* page(int templateId);
    MemoryDialog& dialog() { return dialog_; }
    // The About box as it was last shown; null if it was not.
    const MemoryDialog* aboutBox() const { return aboutBox_.get(); }
    const CallLog& calls() const { return log_; }
    const std::vector<SystemMenuItem>& systemMenu() const { return systemMenu_; }
    const Rect& dividerRect() const { return dividerRect_; }
    void offerSkinEngine(bool offered) { skinOffered_ = offered; }

    DialogControls& controls() override { return dialog_; }
    MemoryTree& tree() override { return tree_; }
    MemorySplash& splash() override { return splash_; }
    ScriptedSkinEngine* skinEngine() override { return skinOffered_ ? &skin_ : nullptr; }
    void appendSystemMenuSeparator() override;
    void appendSystemMenu(int commandId, std::string_view text) override;
    void setSystemMenuText(int commandId, std::string_view text) override;
    void setIcons(int resourceId) override;
    void createImageList(int size, int initialImages, int growth) override;
    void addImage(int bitmapResource, Colour mask) override;
    void createDivider(int controlId, int rangeLeft, int rangeRight) override;
    void createPage(int templateId, DialogHandler& handler) override;
    void runAboutBox(DialogHandler& handler) override;
    void redrawAll() override;
    // Closes the window after the handler has returned.
    void postClose() override { closePosted_ = true; }
    void sendShowHelp() override { handler_->OnHelp(); }

private:
    // Passes on a click of the window's own button.
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
    CallLog log_;
    Clicks clicks_{*this};
    MemoryDialog dialog_;
    MemoryTree tree_{log_};
    MemorySplash splash_{log_};
    ScriptedSkinEngine skin_{log_};
    bool skinOffered_ = true;
    std::vector<std::unique_ptr<MemoryDialog>> pages_;
    std::unique_ptr<MemoryDialog> aboutBox_;
    std::vector<SystemMenuItem> systemMenu_;
    Rect dividerRect_;
    int roomLeft_ = 0;  // how far the divider can still be dragged
    int roomRight_ = 0;
};

}  // namespace korvane
