// The order in which the main window sets itself up, and what becomes of it
// when the skin engine refuses a call.
#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <algorithm>
#include <cstdio>

namespace korvane {
namespace {

// What happens, one line for each step; what is repeated at once counts as one step.
class Log {
public:
    void add(const std::string& line) {
        if (line != last_) {
            text += line + '\n';
            last_ = line;
        }
    }
    std::string text;

private:
    std::string last_;
};

std::string hex(std::uint32_t number) {
    char text[16];
    return {text, static_cast<std::size_t>(std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(number)))};
}

class LoggedTree final : public CTreeListCtrl {
public:
    LoggedTree(CTreeListCtrl& tree, Log& log) : tree_(tree), background_(log), log_(log) {}

    void SetStyle(std::uint32_t style) override { log_.add("tree style " + hex(style)); }
    void SetImageList() override { log_.add("tree images"); }
    void InsertColumn(std::string_view heading, std::uint32_t format, int width, int image, int subItem,
                      int order) override {
        log_.add("tree column '" + std::string(heading) + "' " + hex(format) + numbers({width, image, subItem, order}));
    }
    void SetColumnModify(int column, int modify) override { log_.add("tree modify" + numbers({column, modify})); }
    void SetColumnWidth(int column, int width, int minimum, int maximum) override {
        log_.add("tree width" + numbers({column, width, minimum, maximum}));
    }
    BackgroundImage& GetBGImage() override { return background_; }
    void DeleteAllItems() override { log_.add("tree cleared"); }
    CTreeListItem InsertItem(std::string_view text, CTreeListItem parent, CTreeListItem after) override {
        log_.add("tree rows");
        return tree_.InsertItem(text, parent, after);
    }
    void SetItemData(CTreeListItem item, std::uint32_t data) override { tree_.SetItemData(item, data); }
    void SetItemBold(CTreeListItem, bool) override {}
    void SetItemImage(CTreeListItem, int, int, int, int) override {}
    bool GetSelectedItemData(std::uint32_t&) override { return false; }

private:
    class LoggedBackground final : public BackgroundImage {
    public:
        explicit LoggedBackground(Log& log) : log_(log) {}
        void load(const std::string& path, int&, int&) override { log_.add("background " + path); }

    private:
        Log& log_;
    };

    static std::string numbers(std::initializer_list<int> list) {
        std::string text;
        for (const int number : list) {
            text += ' ' + std::to_string(number);
        }
        return text;
    }

    CTreeListCtrl& tree_;
    LoggedBackground background_;
    Log& log_;
};

class LoggedWindow final : public MainWindow, private SplashWindow, private ISkinEngine {
public:
    LoggedWindow(MemoryMainWindow& window, Log& log) : window_(window), tree_(window.tree(), log), log_(log) {}

    DialogControls& controls() override { return window_.controls(); }
    CTreeListCtrl& tree() override { return tree_; }
    SplashWindow& splash() override { return *this; }
    ISkinEngine* skinEngine() override { return this; }
    void appendSystemMenu(int id, std::string_view text) override {
        log_.add("menu " + std::to_string(id) + ' ' + std::string(text));
    }
    void setIcons(int resource) override { log_.add("icons " + std::to_string(resource)); }
    void createImageList(int size, int initial, int growth) override {
        log_.add("image list " + std::to_string(size) + ' ' + std::to_string(initial) + ' ' + std::to_string(growth));
    }
    void addImage(int, Colour) override { log_.add("images"); }
    void createDivider(int id, int left, int right) override {
        log_.add("divider " + std::to_string(id) + ' ' + std::to_string(left) + ' ' + std::to_string(right));
    }
    void createPage(int id, DialogHandler& handler) override {
        log_.add("page " + std::to_string(id));
        window_.createPage(id, handler);
    }
    void runAboutBox(DialogHandler&) override {}
    void redrawAll() override {}
    void postClose() override { log_.add("close"); }
    void sendShowHelp() override { log_.add("help"); }

private:
    void setFile(const std::string& path) override { log_.add("splash " + path); }
    void setMinimumTime(std::int32_t time) override { log_.add("splash time " + std::to_string(time)); }
    void showSplash(bool wait) override { log_.add(wait ? "splash waits" : "splash shown"); }
    Hresult LoadSkin(const std::string& path) override { return add("skin " + path); }
    Hresult ApplySkin(DialogControls&) override { return add("skin applied"); }
    Hresult ApplySkinElement(DialogControls& dialog, int control, std::string_view element) override {
        // The pages' own elements follow their creation.
        return &dialog == &window_.controls() ? add("skin " + std::to_string(control) + ' ' + std::string(element)) : 0;
    }
    Hresult add(const std::string& line) {
        log_.add(line);
        return 0;
    }

    MemoryMainWindow& window_;
    LoggedTree tree_;
    Log& log_;
};

class LoggedProfile final : public ProfileStrings {
public:
    explicit LoggedProfile(Log& log) : log_(log) {}
    std::string getString(std::string_view section, std::string_view, std::string_view defaultValue, std::size_t,
                          const std::string& file) override {
        log_.add("texts " + file.substr(file.rfind('\\') + 1) + ' ' + std::string(section));
        return std::string(defaultValue);
    }

private:
    Log& log_;
};

class LoggedFiles final : public Files {
public:
    explicit LoggedFiles(Log& log) : log_(log) {}
    std::unique_ptr<File> openExisting(const std::string& path) override { return add("open " + path); }
    std::unique_ptr<File> createAlways(const std::string& path) override { return add("create " + path); }

private:
    std::unique_ptr<File> add(const std::string& line) {
        log_.add(line);
        return nullptr;
    }
    Log& log_;
};

TEST(StartUp, TakesItsStepsInOrder) {
    Log log;
    MemoryRegistry registry;
    loadRegistry(registry, "[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n");
    MemorySystem system;
    LoggedProfile profile(log);
    LoggedFiles files(log);
    Platform platform{registry, system.messages, system.version, system.fixedClock, system.folders,
                      profile,  system.pickers,  files,          system.help};
    MemoryMainWindow memoryWindow;
    LoggedWindow window(memoryWindow, log);
    CKorvaneApp app(platform, "C:\\Korvane\\KorvaneManager.exe");
    CMainDlg dialog(app, window);
    ASSERT_TRUE(dialog.OnInitDialog());

    EXPECT_EQ(log.text,
              "texts English.ini KorvaneManagerStringTable\n"
              "menu 16 &About Korvane Manager...\n"
              "icons 128\n"
              "splash C:\\Korvane\\Skin\\Splash.spl\n"
              "splash time 0\n"
              "splash shown\n"
              "skin C:\\Korvane\\Skin\\skin.skn\n"
              "skin applied\n"
              "skin 1016 Button\n"
              "skin 1053 Splitter\n"
              "texts Deutsch.ini 1004\n"
              "create C:\\Korvane\\DFile.mrc\n"
              "image list 16 1 1\n"
              "background C:\\Korvane\\Skin\\BG.jpg\n"
              "images\n"
              "divider 1053 50 10\n"
              "tree style 306700E3\n"
              "tree images\n"
              "tree column ' ' 504144 0 -1 0 0\n"
              "tree modify 0 1\n"
              "tree width 0 500 0 0\n"
              "tree cleared\n"
              "tree rows\n"
              "texts Deutsch.ini 102\n"
              "page 106\n"
              "page 170\n"
              "page 171\n"
              "page 172\n"
              "page 173\n"
              "page 107\n"
              "page 174\n"
              "page 175\n"
              "page 176\n"
              "texts Deutsch.ini 106\n");
}

TEST(StartUp, ShowsTheFirstOverviewAndNoSelection) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    std::uint32_t selected = 0;
    EXPECT_FALSE(program.window.tree().GetSelectedItemData(selected));
    EXPECT_EQ(pageText(program),
              "page 106\n"
              "1006 Accessories:\nTweak and Settings for Windows Accessories and Components.\n"
              "1007 3 rows, selected -1\n");
    EXPECT_FALSE(program.apply());
    // Even a press that got through finds nothing to apply: no item is selected.
    const std::string before = program.registryText() + program.dateFile();
    program.setToday({.year = 2006, .month = 7, .day = 16});
    program.main->OnApplyChanges();
    EXPECT_EQ(program.registryText() + program.dateFile(), before);
    EXPECT_TRUE(program.messages().empty());
    EXPECT_EQ(program.openHandles(), 0u);
}

TEST(StartUp, LoadsThirtyImagesThroughTheRedMask) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    ASSERT_EQ(program.window.images().size(), 30u);
    for (int image = 0; image < 30; ++image) {
        const auto& loaded = program.window.images()[static_cast<std::size_t>(image)];
        EXPECT_EQ(loaded.bitmapResource, 132 + image);
        EXPECT_EQ(loaded.mask, 255u);
    }
}

TEST(StartUp, KeepsTheLanguageFoundAndChoosesEnglishOtherwise) {
    MemoryProgram fresh;
    ASSERT_TRUE(fresh.start());
    EXPECT_EQ(fresh.app->language(), "English");
    EXPECT_EQ(registryChanges("", fresh.registryText()),
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n"
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager] \"DateModefiedFlage\"=dword:00000001\n"
              "+[HKEY_CURRENT_USER\\Software\\Korvane Manager] \"Language\"=\"English\"\n");

    MemoryProgram german("[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n");
    ASSERT_TRUE(german.start());
    EXPECT_EQ(german.app->language(), "Deutsch");
    EXPECT_NE(german.registryText().find("\"Language\"=\"Deutsch\""), std::string::npos);
}

// ---- Refusals

void expectSkinMessage(const std::vector<MessageBoxRequest>& messages) {
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Could load or apply the skin.");
    EXPECT_EQ(messages[0].icon, MessageIcon::None);
}

TEST(SkinRefusal, EndsTheProgramWhenTheMainWindowIsRefused) {
    // Loading and applying the skin closes the window as a person does; the main window's elements end the dialog with
    // 0.
    constexpr int kClosed = 2;
    for (std::size_t call = 1; call <= 4; ++call) {
        SCOPED_TRACE(call);
        MemoryProgram program;
        program.window.skinEngine()->refuseCall(call);
        EXPECT_FALSE(program.start());
        expectSkinMessage(program.messages());
        EXPECT_EQ(program.window.dialog().result(), call <= 2 ? kClosed : 0);
        EXPECT_EQ(program.window.skinEngine()->calls().size(), call);
        EXPECT_EQ(program.window.splash().timesShown, 1);
        // It ended before it looked at settings, dates and tree.
        EXPECT_TRUE(program.dateFile().empty());
        EXPECT_TRUE(program.window.tree().rows().empty());
        EXPECT_EQ(program.window.page(IDD_CATEGORY), nullptr);
    }
}

TEST(SkinRefusal, AMissingEngineIsReportedAndEndsTheProgram) {
    MemoryProgram program;
    program.window.offerSkinEngine(false);
    EXPECT_FALSE(program.start());
    expectSkinMessage(program.messages());
}

// Selects and applies everything that can be reached; the page of that template must stay away.
void expectPageGone(MemoryProgram& program, int templateId) {
    EXPECT_EQ(program.window.page(templateId)->result(), 0);
    for (int id = 0; id < kItemCount; ++id) {
        program.select(id);
        EXPECT_FALSE(std::ranges::count(program.visiblePages(), templateId)) << "item " << id;
        program.apply();
        if (::testing::Test::HasFailure()) {
            return;
        }
    }
}

TEST(SkinRefusal, EndsOnlyThePageThatIsRefused) {
    MemoryProgram whole;
    ASSERT_TRUE(whole.start());
    const std::size_t calls = whole.window.skinEngine()->calls().size();
    ASSERT_GT(calls, 4u + 9u);
    std::vector<int> tried;
    for (std::size_t call = 5; call <= calls && !HasFailure(); ++call) {
        SCOPED_TRACE(call);
        MemoryProgram program;
        program.window.skinEngine()->refuseCall(call);
        EXPECT_TRUE(program.start());
        expectSkinMessage(program.messages());
        const auto& made = program.window.skinEngine()->calls();
        ASSERT_GE(made.size(), call);
        const int templateId = static_cast<MemoryDialog*>(made[call - 1].dialog)->templateId();
        if (!std::ranges::count(tried, templateId)) {
            tried.push_back(templateId);
            expectPageGone(program, templateId);
        }
        // What comes behind the skin is left out.
        if (templateId == IDD_CATEGORY || templateId == IDD_CHECK_LIST) {
            const int list = templateId == IDD_CATEGORY ? IDC_LIST : IDC_CHECK_LIST;
            EXPECT_EQ(program.window.page(templateId)->find(list)->extendedStyle, 0u);
        }
        if (templateId == IDD_CHECK_COMBOS) {
            EXPECT_EQ(program.window.page(templateId)->comboCount(IDC_COLOUR_COMBO), 0);
        }
    }
    EXPECT_EQ(tried.size(), 9u);
}

}  // namespace
}  // namespace korvane
