// What the pages do by themselves.
#include "pages/Pages.h"

#include "pages/ColourCombo.h"
#include "res/ControlIds.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace korvane {
namespace {

// Extended list-view styles: full-row select, regional and info tips; check boxes too for the check list.
constexpr std::uint32_t kOverviewStyle = 0x620;
constexpr std::uint32_t kCheckListStyle = 0x624;
constexpr Colour kListBackground = rgb(249, 250, 251);

// Intended: one less than the number of colours, so that the last colour is never the initial one.
constexpr int kFirstColourChoices = 139;

constexpr int kLastNumber = 10000;

}  // namespace

void CPage::DoDataExchange() {
    const std::vector<int> ids = controls().controlIds();
    bound_ = std::ranges::all_of(layout().members, [&](int id) { return std::ranges::find(ids, id) != ids.end(); });
}

void CPage::HideControls() {
    for (const int id : layout().hidden) {
        controls().showControl(id, false);
    }
}

bool CCategoryPage::OnInitDialog() {
    if (!CPage::OnInitDialog()) {
        return false;
    }
    controls().setListStyle(IDC_LIST, kOverviewStyle, kListBackground);
    return true;
}

bool CCheckListPage::OnInitDialog() {
    if (!CPage::OnInitDialog()) {
        return false;
    }
    controls().setListStyle(IDC_CHECK_LIST, kCheckListStyle, kListBackground);
    return true;
}

bool CCheckCombosPage::OnInitDialog() {
    if (!CPage::OnInitDialog()) {
        return false;
    }
    CColourCombo(controls(), IDC_COLOUR_COMBO).FillColours();
    std::srand(host().randomSeed());
    controls().selectComboEntry(IDC_COLOUR_COMBO, std::rand() % kFirstColourChoices);
    return true;
}

bool CCheckComboPage::OnInitDialog() {
    controls().setRedraw(IDC_COMBO1, false);
    controls().reserveCombo(IDC_COMBO1, kLastNumber + 1, std::size_t{6} * (kLastNumber + 1));
    char text[8];
    for (int number = 0; number <= kLastNumber; ++number) {
        const auto end = std::to_chars(text, text + sizeof text, number).ptr;
        controls().addComboEntry(IDC_COMBO1, {text, end});
    }
    controls().setRedraw(IDC_COMBO1, true);
    return CPage::OnInitDialog();
}

void CCheckComboPage::OnClicked(int id) {
    if (id == IDC_CHECK1) {
        controls().enableControl(IDC_COMBO1, controls().check(IDC_CHECK1) == 1);
    }
}

void CBrowsePage::OnClicked(int id) {
    for (const RowControls& row : layout().rows) {
        if (row.browse == id) {
            controls().setText(row.edit, host().browse(id));
        }
    }
}

void CCheckFieldsPage::OnClicked(int id) {
    if (id == IDC_CHECK1 && host().boxEnablesFields()) {
        EnableFields(controls().check(IDC_CHECK1) == 1);
    }
    CBrowsePage::OnClicked(id);
}

void CCheckFieldsPage::EnableFields(bool enabled) {
    for (const int id : {IDC_EDIT1, IDC_EDIT2, IDC_BROWSE1}) {
        controls().enableControl(id, enabled);
    }
}

std::vector<std::unique_ptr<CPage>> makePages(DialogHost& host) {
    std::vector<std::unique_ptr<CPage>> pages;
    pages.push_back(std::make_unique<CCategoryPage>(host));
    pages.push_back(std::make_unique<CChecksPage>(host));
    pages.push_back(std::make_unique<CCheckFieldsPage>(host));
    pages.push_back(std::make_unique<CCheckCombosPage>(host));
    pages.push_back(std::make_unique<CCheckListPage>(host));
    pages.push_back(std::make_unique<CPathFieldsPage>(host));
    pages.push_back(std::make_unique<CCombosPage>(host));
    pages.push_back(std::make_unique<CEditCombosPage>(host));
    pages.push_back(std::make_unique<CCheckComboPage>(host));
    return pages;
}

}  // namespace korvane
