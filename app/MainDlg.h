// The decisions of the main window: start-up, the tree, which page is shown and
// which is applied. The windows themselves are behind MainWindow.
#pragma once

#include "app/CatalogModule.h"
#include "app/KorvaneApp.h"
#include "history/DateStore.h"
#include "pages/PageContext.h"
#include "pages/Pages.h"
#include "platform/MainWindow.h"

#include <memory>
#include <string>
#include <vector>

namespace korvane {

class CMainDlg : public MainWindowHandler, private PageHost, private DialogHost {
public:
    // Both are borrowed and must outlive the dialog.
    CMainDlg(CKorvaneApp& app, MainWindow& window, Dates dates = Dates::InFile);

    bool OnInitDialog() override;
    void OnSelectionChanged() override;
    void OnApplyChanges() override;
    void OnAbout() override;
    void OnHelp() override { app_.ShowHelp(); }
    void OnFrameButton(const std::string& name) override;
    void OnDividerMoved(int distance) override;
    void OnDestroy() override;

    // How often a date was recorded so far.
    int stampCount() const { return stampCount_; }
    const DateStore& dates() const { return dates_; }

private:
    // PageHost
    bool hasPage(Page page) override;
    DialogControls& page(Page page) override;
    void showApplyButton() override;
    Rect applyButtonRect(Page page) override;
    std::string headerText(int id) override { return app_.items().headerText(id); }
    std::vector<OverviewRow> overviewRows(const Tweak& category) override;
    std::string translated(int id, const std::string& key, std::string_view text) override;
    void stamp() override;
    void alert(Alert alert) override;
    ListColumns& listColumns() override { return listColumns_; }

    // DialogHost
    bool applySkinElement(DialogControls& dialog, const SkinAssignment& element) override;
    void showSkinFailure() override;
    std::uint32_t randomSeed() override { return app_.platform().clock.seed(); }
    bool boxEnablesFields() override;
    std::string browse(int button) override;

    void appendAboutItem();
    void showSplash();
    bool loadSkin();
    void loadTreeBackground();
    void fillImageList();
    void setUpTree();
    void buildTree();
    void translateWindow();
    void createPages();
    void hideAllPages();
    CCatalogModule* moduleOf(std::uint32_t id);
    int currentItem() const { return static_cast<int>(currentItem_); }

    CKorvaneApp& app_;
    MainWindow& window_;
    DateStore dates_;
    int stampCount_ = 0;
    std::vector<CCatalogModule> modules_;
    std::vector<CCatalogModule*> moduleById_;  // by ItemId, so that every dispatch is an index
    std::vector<std::unique_ptr<CPage>> pages_;
    ListColumns listColumns_;
    std::uint32_t currentItem_;
    ISkinEngine* skin_ = nullptr;
    // The language file of this run; set after the setting has been read.
    LanguageFile language_;
};

}  // namespace korvane
