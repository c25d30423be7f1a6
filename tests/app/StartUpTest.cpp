// The order in which the main window sets itself up, and what becomes of it
// when the skin engine refuses a call.
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <set>

namespace korvane {
namespace {

// Every service of a start, which writes down what it is asked, one line for each step; what is repeated at once counts
// as one step.
class LoggedStart final : public MainWindow,
                          public CTreeListCtrl,
                          public BackgroundImage,
                          public SplashWindow,
                          public ISkinEngine,
                          public ProfileStrings,
                          public Files {
public:
    std::string text;

    DialogControls& controls() override { return window_.controls(); }
    CTreeListCtrl& tree() override { return *this; }
    SplashWindow& splash() override { return *this; }
    ISkinEngine* skinEngine() override { return this; }
    void appendSystemMenu(int, std::string_view) override { add("menu"); }
    void setIcons(int) override { add("icons"); }
    void createImageList(int, int, int) override { add("image list"); }
    void addImage(int, Colour) override { add("images"); }
    void createDivider(int, int, int) override { add("divider"); }
    void createPage(int id, DialogHandler& handler) override {
        add("page " + std::to_string(id));
        window_.createPage(id, handler);
    }
    void runAboutBox(DialogHandler&) override {}
    void redrawAll() override {}
    void postClose() override { add("close"); }
    void sendShowHelp() override { add("help"); }

    void SetStyle(std::uint32_t) override { add("tree style"); }
    void SetImageList() override { add("tree images"); }
    void InsertColumn(std::string_view, std::uint32_t, int, int, int, int) override { add("tree column"); }
    void SetColumnModify(int, int) override {}
    void SetColumnWidth(int, int, int, int) override {}
    BackgroundImage& GetBGImage() override { return *this; }
    void DeleteAllItems() override { add("tree cleared"); }
    CTreeListItem InsertItem(std::string_view row, CTreeListItem parent, CTreeListItem after) override {
        add("tree rows");
        return window_.tree().InsertItem(row, parent, after);
    }
    void SetItemData(CTreeListItem, std::uint32_t) override {}
    void SetItemBold(CTreeListItem, bool) override {}
    void SetItemImage(CTreeListItem, int, int, int, int) override {}
    bool GetSelectedItemData(std::uint32_t&) override { return false; }
    void load(const std::string& path, int&, int&) override { add("background " + path); }

    void setFile(const std::string& path) override { add("splash " + path); }
    void setMinimumTime(std::int32_t) override {}
    void showSplash(bool wait) override { add(wait ? "splash waits" : "splash shown"); }
    Hresult LoadSkin(const std::string& path) override { return add("skin " + path); }
    Hresult ApplySkin(DialogControls&) override { return add("skin applied"); }
    Hresult ApplySkinElement(DialogControls& dialog, int control, std::string_view element) override {
        // The pages' own elements follow their creation.
        return &dialog == &controls() ? add("skin " + std::to_string(control) + ' ' + std::string(element)) : 0;
    }

    std::string getString(std::string_view section, std::string_view, std::string_view defaultValue, std::size_t,
                          const std::string& file) override {
        add("texts " + file.substr(file.rfind('\\') + 1) + ' ' + std::string(section));
        return std::string(defaultValue);
    }
    std::unique_ptr<File> openExisting(const std::string& path) override {
        add("open " + path);
        return nullptr;
    }
    std::unique_ptr<File> createAlways(const std::string& path) override {
        add("create " + path);
        return nullptr;
    }

private:
    Hresult add(const std::string& line) {
        if (!text.ends_with('\n' + line + '\n')) {
            text += line + '\n';
        }
        return 0;
    }

    MemoryMainWindow window_;
};

TEST(StartUp, TakesItsStepsInOrder) {
    MemoryRegistry registry;
    loadRegistry(registry, "[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n");
    MemorySystem system;
    LoggedStart log;
    log.text = "\n";
    Platform platform{registry, system.messages, system.version, system.fixedClock, system.folders,
                      log,      system.pickers,  log,            system.help};
    CKorvaneApp app(platform, "C:\\Korvane\\KorvaneManager.exe");
    CMainDlg dialog(app, log);
    ASSERT_TRUE(dialog.OnInitDialog());
    EXPECT_EQ(log.text,
              "\ntexts English.ini KorvaneManagerStringTable\nmenu\nicons\n"
              "splash C:\\Korvane\\Skin\\Splash.spl\nsplash shown\n"
              "skin C:\\Korvane\\Skin\\skin.skn\nskin applied\nskin 1016 Button\nskin 1053 Splitter\n"
              "texts Deutsch.ini 1004\ncreate C:\\Korvane\\DFile.mrc\n"
              "image list\nbackground C:\\Korvane\\Skin\\BG.jpg\nimages\ndivider\n"
              "tree style\ntree images\ntree column\ntree cleared\ntree rows\ntexts Deutsch.ini 102\n"
              "page 106\npage 170\npage 171\npage 172\npage 173\npage 107\npage 174\npage 175\npage 176\n"
              "texts Deutsch.ini 106\n");
}

TEST(StartUp, ShowsTheFirstOverviewAndNoSelection) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    EXPECT_EQ(pageText(program),
              "page 106\n"
              "1006 Accessories:\nTweak and Settings for Windows Accessories and Components.\n"
              "1007 3 rows, selected -1\n");
    EXPECT_EQ(registryChanges("", program.registryText()),
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n"
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager] \"DateModefiedFlage\"=dword:00000001\n"
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager] \"Language\"=\"English\"\n");
    EXPECT_FALSE(program.apply());
    // Even a press that got through finds nothing to apply: no item is selected.
    const std::string before = program.registryText() + program.dateFile();
    program.setToday({.year = 2006, .month = 7, .day = 16});
    program.main->OnApplyChanges();
    EXPECT_EQ(program.registryText() + program.dateFile(), before);
    EXPECT_EQ(program.openHandles(), 0u);
}

// ---- Refusals

void expectSkinMessage(const std::vector<MessageBoxRequest>& messages) {
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Could load or apply the skin.");
    EXPECT_EQ(messages[0].icon, MessageIcon::None);
}

TEST(SkinRefusal, EndsTheProgramWhenTheMainWindowIsRefused) {
    // A missing engine, and loading and applying the skin, close the window as a person does; the main window's
    // elements end the dialog with 0.
    constexpr int kClosed = 2;
    for (std::size_t call = 0; call <= 4; ++call) {
        SCOPED_TRACE(call);
        MemoryProgram program;
        program.window.skinEngine()->refuseCall(call);
        program.window.offerSkinEngine(call != 0);
        EXPECT_FALSE(program.start());
        expectSkinMessage(program.messages());
        EXPECT_EQ(program.window.dialog().result(), call <= 2 ? kClosed : 0);
        // It ended before it looked at settings, dates and tree.
        EXPECT_TRUE(program.dateFile().empty());
        EXPECT_TRUE(program.window.tree().rows().empty());
        EXPECT_EQ(program.window.page(IDD_CATEGORY), nullptr);
    }
}

TEST(SkinRefusal, EndsOnlyThePageThatIsRefused) {
    MemoryProgram whole;
    ASSERT_TRUE(whole.start());
    const std::size_t calls = whole.window.skinEngine()->calls().size();
    std::set<int> tried;
    for (std::size_t call = 5; call <= calls && !HasFailure(); ++call) {
        SCOPED_TRACE(call);
        MemoryProgram program;
        program.window.skinEngine()->refuseCall(call);
        EXPECT_TRUE(program.start());
        expectSkinMessage(program.messages());
        auto* page = static_cast<MemoryDialog*>(program.window.skinEngine()->calls().at(call - 1).dialog);
        EXPECT_EQ(page->result(), 0);
        // Everything that can be reached is selected and applied; the page must stay away.
        const bool isFirst = tried.insert(page->templateId()).second;
        for (int id = 0; isFirst && id < kItemCount; ++id) {
            program.select(id);
            ASSERT_FALSE(page->visible()) << "item " << id;
            program.apply();
        }
        // What comes behind the skin is left out.
        if (page->templateId() == IDD_CHECK_LIST) {
            EXPECT_EQ(page->find(IDC_CHECK_LIST)->extendedStyle, 0u);
        }
        if (page->templateId() == IDD_CHECK_COMBOS) {
            EXPECT_EQ(page->comboCount(IDC_COLOUR_COMBO), 0);
        }
    }
    EXPECT_EQ(tried.size(), 9u);
}

}  // namespace
}  // namespace korvane
