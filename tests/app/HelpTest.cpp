// Opening the help: which file, which library, and what a failure costs.
#include "app/HelpLoader.h"
#include "tests/support/AppFixture.h"

namespace korvane {
namespace {

constexpr std::string_view kServer =
    "[HKEY_CLASSES_ROOT\\CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32]\n@=";

constexpr const char* kMachineServer =
    "[HKEY_LOCAL_MACHINE\\Software\\Classes\\CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32]\n@=\"";

struct Help {
    explicit Help(std::string_view registryText) { loadRegistry(registry, registryText); }
    std::uintptr_t call() { return loader.call(1, "file.chm", 2, 3); }

    MemoryRegistry registry;
    ScriptedHelpLibrary library;
    HelpLoader loader{registry, library};
};

using Paths = std::vector<std::string>;

TEST(Help, LoadsTheRegisteredLibraryOnceAndFallsBackToTheLibrarysName) {
    Help help(std::string(kServer) + "\"C:\\\\WINDOWS\\\\hh.ocx\"\n");
    help.library.modules = {"C:\\WINDOWS\\hh.ocx", "hhctrl.ocx"};
    help.library.result = 77;
    EXPECT_EQ(help.call(), 77u);
    EXPECT_EQ(help.call(), 77u);
    EXPECT_EQ(help.library.asked, Paths{"C:\\WINDOWS\\hh.ocx"});
    EXPECT_EQ(help.library.calls.size(), 2u);
    EXPECT_EQ(help.registry.openHandles(), 0u);

    // The longest path has 259 characters, with its zero 260.
    const std::string longest(259, 'x');
    for (const auto& [registered, asked] : {std::pair<std::string, Paths>{"gone.ocx", {"gone.ocx", "hhctrl.ocx"}},
                                            {"", {"hhctrl.ocx"}},
                                            {longest, {longest, "hhctrl.ocx"}},
                                            {longest + 'x', {"hhctrl.ocx"}}}) {
        Help other(std::string(kServer) + '"' + registered + "\"\n");
        EXPECT_EQ(other.call(), 1u);
        EXPECT_EQ(other.library.asked, asked);
    }
}

// The user's own classes hide the machine's, and any program of the user's can write them.
TEST(Help, TakesNoLibraryOfTheUsersIntoAnElevatedProgram) {
    for (const char* machine : {"user.ocx", "machine.ocx", ""}) {
        for (const bool elevated : {false, true}) {
            Help help(std::string(kServer) + "\"user.ocx\"\n" + kMachineServer + machine + "\"\n");
            help.library.elevated = elevated;
            help.library.modules = {"user.ocx", "hhctrl.ocx"};
            EXPECT_EQ(help.call(), 1u);
            const bool trusted = !elevated || machine == std::string_view("user.ocx");
            EXPECT_EQ(help.library.asked, Paths{trusted ? "user.ocx" : "hhctrl.ocx"}) << machine;
        }
    }
}

TEST(Help, GivesUpForGoodAfterAFailure) {
    Help noLibrary(std::string(kServer) + "\"C:\\\\gone.ocx\"\n");
    noLibrary.library.modules.clear();
    EXPECT_EQ(noLibrary.call(), 0u);
    noLibrary.library.modules = {"hhctrl.ocx"};
    EXPECT_EQ(noLibrary.call(), 0u);
    EXPECT_EQ(noLibrary.library.asked, (Paths{"C:\\gone.ocx", "hhctrl.ocx"}));
    Help noFunction("");
    noFunction.library.ordinals = {13, 15};
    EXPECT_EQ(noFunction.call(), 0u);
}

TEST(Help, OpensTheFileOfTheLanguageWhetherOrNotItExists) {
    MemoryProgram program("[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"Language\"=\"Deutsch\"\n");
    ASSERT_TRUE(program.start("D:\\My Tools\\a.b\\x.exe"));
    ASSERT_TRUE(program.window.pressFrameButton("hELp"));  // as a skin may spell it
    ASSERT_EQ(program.system.help.calls.size(), 1u);
    EXPECT_EQ(program.system.help.calls[0].file, "D:\\My Tools\\a.b\\Help\\Deutsch.chm");
    EXPECT_EQ(program.system.help.calls[0].command, 0u);
    EXPECT_TRUE(program.messages().empty());
}

}  // namespace
}  // namespace korvane
