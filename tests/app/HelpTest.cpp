// Opening the help: which file, which library, and what a failure costs.
#include "app/HelpLoader.h"
#include "tests/support/AppFixture.h"

namespace korvane {
namespace {

constexpr std::string_view kServer =
    "[HKEY_CLASSES_ROOT\\CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32]\n@=";

struct Help {
    explicit Help(std::string_view registryText) { loadRegistry(registry, registryText); }
    std::uintptr_t call() { return loader.call(1, "file.chm", 2, 3); }

    MemoryRegistry registry;
    ScriptedHelpLibrary library;
    HelpLoader loader{registry, library};
};

using Paths = std::vector<std::string>;

TEST(Help, LoadsTheRegisteredLibraryOnce) {
    Help help(std::string(kServer) + "\"C:\\\\WINDOWS\\\\hh.ocx\"\n");
    help.library.modules = {"C:\\WINDOWS\\hh.ocx", "hhctrl.ocx"};
    help.library.result = 77;
    EXPECT_EQ(help.call(), 77u);
    EXPECT_EQ(help.call(), 77u);
    EXPECT_EQ(help.library.asked, Paths{"C:\\WINDOWS\\hh.ocx"});
    ASSERT_EQ(help.library.calls.size(), 2u);
    EXPECT_EQ(help.library.calls[0].caller, 1u);
    EXPECT_EQ(help.library.calls[0].file, "file.chm");
    EXPECT_EQ(help.library.calls[0].command, 2u);
    EXPECT_EQ(help.library.calls[0].data, 3u);
    EXPECT_EQ(help.registry.openHandles(), 0u);
}

TEST(Help, FallsBackToTheLibrarysName) {
    const std::string path(260, 'x');  // one byte too long with its zero
    for (const std::string& registered :
         {std::string(), std::string(kServer) + "\"C:\\\\gone.ocx\"\n", std::string(kServer) + "\"\"\n",
          std::string(kServer) + '"' + path + "\"\n"}) {
        SCOPED_TRACE(registered);
        Help help(registered);
        EXPECT_EQ(help.call(), 1u);
        EXPECT_EQ(help.library.asked.back(), "hhctrl.ocx");
        EXPECT_NE(help.library.asked.front(), path);
        EXPECT_EQ(help.library.calls.size(), 1u);
    }
}

TEST(Help, GivesUpForGoodAfterAFailure) {
    Help noLibrary(std::string(kServer) + "\"C:\\\\gone.ocx\"\n");
    noLibrary.library.modules.clear();
    EXPECT_EQ(noLibrary.call(), 0u);
    EXPECT_EQ(noLibrary.library.asked, (Paths{"C:\\gone.ocx", "hhctrl.ocx"}));
    noLibrary.library.modules = {"hhctrl.ocx"};
    EXPECT_EQ(noLibrary.call(), 0u);
    EXPECT_EQ(noLibrary.library.asked.size(), 2u);

    Help noFunction("");
    noFunction.library.ordinals = {13, 15};
    EXPECT_EQ(noFunction.call(), 0u);
    noFunction.library.ordinals = {14};
    EXPECT_EQ(noFunction.call(), 0u);
    EXPECT_EQ(noFunction.library.asked, Paths{"hhctrl.ocx"});
    EXPECT_TRUE(noFunction.library.calls.empty());
}

TEST(Help, OpensTheFileOfTheLanguageWhetherOrNotItExists) {
    struct {
        const char* executable;
        const char* language;
        const char* file;
        const char* button;  // of the frame, as a skin may spell it
    } const cases[] = {
        {"C:\\Korvane\\KorvaneManager.exe", "English", "C:\\Korvane\\Help\\English.chm", "Help"},
        {"C:\\Korvane\\KorvaneManager.exe", "Deutsch", "C:\\Korvane\\Help\\Deutsch.chm", "HELP"},
        {"C:\\KorvaneManager.exe", "English", "C:\\Help\\English.chm", "help"},
        {"D:\\My Tools\\a.b\\x.exe", "", "D:\\My Tools\\a.b\\Help\\.chm", "hELp"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.file);
        MemoryProgram program("[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"" +
                              std::string(each.language) + "\"\n");
        ASSERT_TRUE(program.start(each.executable));
        ASSERT_TRUE(program.window.pressFrameButton(each.button));
        ASSERT_EQ(program.system.help.calls.size(), 1u);
        EXPECT_EQ(program.system.help.calls[0].file, each.file);
        EXPECT_EQ(program.system.help.calls[0].caller, 0u);
        EXPECT_EQ(program.system.help.calls[0].command, 0u);
        EXPECT_EQ(program.system.help.calls[0].data, 0u);
        EXPECT_TRUE(program.messages().empty());
    }
}

}  // namespace
}  // namespace korvane
