// Start-up and dispatch.
#include "app/MainDlg.h"

#include "app/AboutDlg.h"
#include "app/StringTable.h"
#include "text/CaseFolding.h"
#include "platform/MessageBoxes.h"
#include "res/ControlIds.h"

namespace korvane {
namespace {

// No item is selected yet. A number above every ItemId.
constexpr std::uint32_t kNoItem = 0xFFFFFFFF;
constexpr std::uint32_t kLastItem = kItemCount - 1;
// Items 0 and 1 are categories, so the first item that can be applied is 2.
constexpr std::uint32_t kFirstAppliedItem = 2;

constexpr int kImageSize = 16;
constexpr int kImageCount = 30;
constexpr Colour kImageMask = rgb(255, 0, 0);

constexpr int kDividerRangeLeft = 50;
constexpr int kDividerRangeRight = 10;

// The tree control's values for "lines, buttons, selection always shown" and "left-aligned".
constexpr std::uint32_t kTreeStyle = 0x306700E3;
constexpr std::uint32_t kTreeColumnFormat = 0x504144;
constexpr int kTreeColumnWidth = 500;

}  // namespace

CMainDlg::CMainDlg(CKorvaneApp& app, MainWindow& window, Dates dates)
    : app_(app),
      window_(window),
      dates_(app.platform().registry, app.platform().files, app.platform().clock,
             {.kept = dates, .path = app.programFolder() + "\\DFile.mrc"},
             [this] { return app_.items().titles(); }),
      moduleById_(kItemCount),
      pages_(makePages(*this)),
      currentItem_(kNoItem),
      language_(app.languageFile()) {
    PageHost& host = *this;
    for (const CatalogueGroup& group : catalogueGroups()) {
        modules_.emplace_back(group, host, app_.platform());
    }
    for (CCatalogModule& module : modules_) {
        for (int id = 0; id < kItemCount; ++id) {
            if (module.owns(id)) {
                moduleById_[static_cast<std::size_t>(id)] = &module;
            }
        }
    }
}

// The order is fixed: the splash screen before the skin, the texts before what shows them.
bool CMainDlg::OnInitDialog() {
    appendAboutItem();
    window_.setIcons(IDI_KORVANE);
    showSplash();
    if (!loadSkin()) {
        return false;
    }
    ignoreFailure(app_.ReadSettings());
    language_ = app_.languageFile();
    app_.BuildItemTable();
    app_.TranslateItemTable();
    dates_.Initialise();
    window_.createImageList(kImageSize, 1, 1);
    loadTreeBackground();
    fillImageList();
    window_.createDivider(IDC_DIVIDER, kDividerRangeLeft, kDividerRangeRight);
    setUpTree();
    buildTree();
    translateWindow();
    createPages();
    hideAllPages();
    moduleById_[0]->Show(0);
    return true;
}

void CMainDlg::appendAboutItem() {
    const std::string text = app_.LoadString(kStringAboutItem);
    if (!text.empty()) {
        window_.appendSystemMenuSeparator();
        window_.appendSystemMenu(IDM_ABOUT, text);
    }
}

void CMainDlg::showSplash() {
    window_.splash().setFile(app_.programFolder() + "\\Skin\\Splash.spl");
    window_.splash().setMinimumTime(0);
    window_.splash().showSplash(false);
}

bool CMainDlg::loadSkin() {
    skin_ = window_.skinEngine();
    if (skin_ == nullptr || failed(skin_->LoadSkin(app_.programFolder() + "\\Skin\\skin.skn")) ||
        failed(skin_->ApplySkin(window_.controls()))) {
        showSkinFailure();
        window_.postClose();
        return false;
    }
    for (const SkinAssignment& element : {SkinAssignment{IDC_APPLY, "Button"}, SkinAssignment{IDC_DIVIDER, "Splitter"}}) {
        if (!applySkinElement(window_.controls(), element)) {
            showSkinFailure();
            window_.controls().endDialog(0);
            return false;
        }
    }
    return true;
}

bool CMainDlg::applySkinElement(DialogControls& dialog, const SkinAssignment& element) {
    return skin_ != nullptr && !failed(skin_->ApplySkinElement(dialog, element.control, element.element));
}

// The splash would cover the message.
void CMainDlg::showSkinFailure() {
    window_.splash().hide();
    app_.platform().messages.show({.text = "Could load or apply the skin.",
                                   .caption = std::string(kProgramTitle),
                                   .ownedByMainWindow = true});
}

void CMainDlg::loadTreeBackground() {
    int width = 0;
    int height = 0;
    window_.tree().GetBGImage().load(app_.programFolder() + "\\Skin" + "\\BG.jpg", width, height);
}

void CMainDlg::fillImageList() {
    for (int image = 0; image < kImageCount; ++image) {
        window_.addImage(IDB_FIRST_TREE_IMAGE + image, kImageMask);
    }
}

void CMainDlg::setUpTree() {
    CTreeListCtrl& tree = window_.tree();
    tree.SetStyle(kTreeStyle);
    tree.SetImageList();
    tree.InsertColumn({.heading = " ", .format = kTreeColumnFormat});
    tree.SetColumnModify(0, 1);
    tree.SetColumnWidth(0, kTreeColumnWidth, 0, 0);
}

void CMainDlg::buildTree() {
    CTreeListCtrl& tree = window_.tree();
    std::vector<CTreeListItem> rows(kItemCount, kRootItem);
    tree.DeleteAllItems();
    for (std::size_t id = 0; id < app_.items().size(); ++id) {
        const Tweak& tweak = *findTweak(static_cast<int>(id));
        if (tweak.treeParent == kNoTreeRow) {
            continue;
        }
        const TweakItem& item = app_.items()[id];
        const CTreeListItem parent =
            tweak.treeParent == kTreeRoot ? kRootItem : rows[static_cast<std::size_t>(tweak.treeParent)];
        rows[id] = tree.InsertItem(tweak.treeRowText(), parent, kInsertLast);
        tree.SetItemData(rows[id], static_cast<std::uint32_t>(item.id));
        tree.SetItemBold(rows[id], tweak.isCategory());
        tree.SetItemImage(rows[id], item.image, item.image, item.image, item.image);
    }
}

// The menu's item was made before the user's language was known.
void CMainDlg::translateWindow() {
    language_.translateDialog(window_.controls(), IDD_MAIN);
    window_.setSystemMenuText(IDM_ABOUT, app_.LoadString(kStringAboutItem));
}

void CMainDlg::createPages() {
    for (const auto& page : pages_) {
        window_.createPage(page->templateId(), *page);
    }
}

void CMainDlg::hideAllPages() {
    for (const auto& page : pages_) {
        if (page->exists()) {
            page->controls().show(false);
            page->HideControls();
        }
    }
    auto& checkFields = static_cast<CCheckFieldsPage&>(*pages_[static_cast<std::size_t>(Page::CheckFields)]);
    if (checkFields.exists()) {
        checkFields.EnableFields(true);
    }
    window_.controls().showControl(IDC_APPLY, false);
}

bool CMainDlg::hasPage(Page page) { return pages_[static_cast<std::size_t>(page)]->exists(); }

CCatalogModule* CMainDlg::moduleOf(std::uint32_t id) { return id > kLastItem ? nullptr : moduleById_[id]; }

void CMainDlg::OnSelectionChanged() {
    std::uint32_t id = 0;
    if (!window_.tree().GetSelectedItemData(id)) {
        return;
    }
    currentItem_ = id;
    hideAllPages();
    if (CCatalogModule* module = moduleOf(id)) {
        module->Show(static_cast<int>(id));
    }
}

void CMainDlg::OnApplyChanges() {
    CCatalogModule* module = moduleOf(currentItem_);
    if (module != nullptr && currentItem_ >= kFirstAppliedItem) {
        module->Apply(static_cast<int>(currentItem_));
    }
}

void CMainDlg::OnAbout() {
    CAboutDlg about(*this, language_);
    window_.runAboutBox(about);
}

void CMainDlg::OnFrameButton(const std::string& name) {
    if (equalIgnoringCase(name, "Help")) {
        window_.sendShowHelp();
    }
}

void CMainDlg::OnDestroy() { skin_ = nullptr; }

// The right edge of the tree and the left edge of the pages follow the splitter. Intended: the controls of a page move
// by a fraction only, the distance times 100 divided by the width of the page.
void CMainDlg::OnDividerMoved(int distance) {
    Rect tree = window_.controls().controlRect(IDC_TREE);
    tree.right += distance;
    window_.controls().moveControl(IDC_TREE, tree);
    for (const auto& page : pages_) {
        if (!page->exists()) {
            continue;
        }
        DialogControls& controls = page->controls();
        Rect rect = controls.rect();
        const int shift = rect.width() == 0 ? 0 : distance * 100 / rect.width();
        rect.left += distance;
        controls.move(rect);
        for (const int id : controls.controlIds()) {
            Rect control = controls.controlRect(id);
            control.left += shift;
            controls.moveControl(id, control);
        }
    }
    window_.redrawAll();
}

DialogControls& CMainDlg::page(Page page) { return pages_[static_cast<std::size_t>(page)]->controls(); }

void CMainDlg::showApplyButton() { window_.controls().showControl(IDC_APPLY, true); }

Rect CMainDlg::applyButtonRect(Page page) {
    const Rect button = window_.controls().controlRect(IDC_APPLY);
    const Rect area = this->page(page).rect();
    return {button.left - area.left, button.top - area.top, button.right - area.left, button.bottom - area.top};
}

std::string CMainDlg::translated(int id, const std::string& key, std::string_view text) {
    const std::string section = id == kOverviewTexts ? std::to_string(IDD_CATEGORY) : itemSection(id);
    std::string found = language_.text(section, key);
    return found.empty() ? std::string(text) : found;
}

void CMainDlg::stamp() {
    if (dates_.Stamp(app_.items().title(currentItem()))) {
        ++stampCount_;
    }
}

// A tweak shows its title or, if so declared, the text of its tree row; a translated title replaces both.
std::vector<OverviewRow> CMainDlg::overviewRows(const Tweak& category) {
    std::vector<OverviewRow> rows;
    for (const int id : overviewItems(category)) {
        const Tweak& tweak = *findTweak(id);
        const std::string title = app_.items().title(id);
        const bool ownText = tweak.overviewShowsTreeText && title == tweak.title;
        rows.push_back({ownText ? std::string(tweak.treeText) : title, dates_.LookUp(title)});
    }
    return rows;
}

void CMainDlg::alert(Alert alert) {
    const int stringId = static_cast<int>(alert);
    app_.platform().messages.show({.text = app_.LoadString(stringId),
                                   .caption = app_.LoadString(kStringAlertCaption),
                                   .icon = MessageIcon::Stop,
                                   .stringId = stringId});
}

bool CMainDlg::boxEnablesFields() {
    const Tweak* tweak = findTweak(currentItem());
    return tweak != nullptr && tweak->boxEnablesFields;
}

std::string CMainDlg::browse(int button) {
    Picker picker = Picker::File;
    if (const Tweak* tweak = findTweak(currentItem())) {
        for (std::size_t i = 0; i < tweak->fields.size(); ++i) {
            picker = fieldControls(*tweak, i).browse == button ? tweak->fields[i].picker : picker;
        }
    }
    Pickers& pickers = app_.platform().pickers;
    if (picker == Picker::Folder) {
        return pickers.browseForFolder();
    }
    const std::string file = pickers.openFile(picker == Picker::IconFile ? "*.ico||" : "All Files(*.*)|*.*||");
    return file.empty() ? file : '"' + file + '"';
}

}  // namespace korvane
