// Language files: escapes, cut values, and what is left in English.
#include "app/ItemTable.h"
#include "lang/LanguageFile.h"
#include "lang/TitleRules.h"
#include "platform/memory/DialogTemplates.h"
#include "platform/stdio/IniFile.h"
#include "platform/memory/MemoryDialog.h"
#include "res/ControlIds.h"

#include "tests/cli/TestFolder.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

struct Language {
    explicit Language(std::string_view content) { profile.setContent("Test.ini", content); }

    IniFile profile;
    LanguageFile file{profile, "Test.ini"};
    MemoryDialog dialog{*findDialogTemplate(IDD_MAIN)};
};

TEST(Unescape, ReplacesLineFeedsAndTabsAndNothingElse) {
    for (const auto& [text, result] : {std::pair{"one\\ntwo\\n\\tthree", "one\ntwo\n\tthree"},
                                       {"\\N\\T\\r\\\"", "\\N\\T\\r\\\""},
                                       {"\\\\n", "\\\n"},
                                       {"ends with \\", "ends with \\"}}) {
        EXPECT_EQ(Unescape(text), result) << text;
    }
}

TEST(LanguageFile, TranslatesADialogByItsNumbersAndLeavesWhatItDoesNotName) {
    Language german("[102]\n102=Titel\n1016=Eins\\nZwei\n1004=\n1057\n[1016]\n1016=falsch\n[0]\n0=Null\n1016=Null\n");
    german.file.translateDialog(german.dialog, IDD_MAIN);
    german.file.translateDialog(german.dialog, 0);
    EXPECT_EQ(german.dialog.caption(), "Titel");
    EXPECT_EQ(german.dialog.text(IDC_APPLY), "Eins\nZwei");
    EXPECT_EQ(german.dialog.text(IDC_TREE), "Trellis") << "an empty value leaves the text";
}

TEST(LanguageFile, CutsCaptionsShorterThanTexts) {
    const std::string longest(2000, 'x');
    // The file's characters are counted, before the escapes are replaced; one that is cut in two is none.
    Language german("[102]\n102=" + longest + "\n1016=" + std::string(1022, 'x') + "\\n\n1004=\\n" + longest +
                    "\n[1004]\n432=" + longest + "\n");
    german.file.translateDialog(german.dialog, IDD_MAIN);
    EXPECT_EQ(german.dialog.caption(), std::string(259, 'x'));
    EXPECT_EQ(german.dialog.text(IDC_APPLY), std::string(1022, 'x') + '\\');
    EXPECT_EQ(german.dialog.text(IDC_TREE), '\n' + std::string(1021, 'x'));
    ItemTable items;
    items.build();
    items.translate(german.file);
    EXPECT_EQ(items.title(43), std::string(1023, 'x'));
}

TEST(LanguageFile, ReplacesIdsTitlesAndDescriptions) {
    Language german("[1004]\n432=Titel\n433=Eins\\n\\tZwei\n01=7\n02=\n3102=Neu\n3112=niemand\n");
    ItemTable items;
    items.build();
    const std::string first = items.title(0);
    items.translate(german.file);
    EXPECT_EQ(items.headerText(43), "Titel:\nEins\n\tZwei");
    EXPECT_EQ(items[0].id, 7);
    EXPECT_EQ(items.title(0), first);
    EXPECT_EQ(items.title(310), "Neu");
    EXPECT_EQ(items.headerText(311), "");
    EXPECT_EQ(items.headerText(-1), "");
}

TEST(TitleRules, KeepTheDateFileReadableInEveryShippedLanguage) {
    const auto problemsWith = [](const LanguageFile& language) {
        ItemTable items;
        items.build();
        const std::vector<std::string> builtIn = items.titles();
        items.translate(language);
        std::string found;
        for (const TitleProblem& problem : titleProblems(items.titles(), builtIn)) {
            found += std::to_string(problem.item) + ' ' + problem.reason + '\n';
        }
        return found;
    };
    EXPECT_EQ(problemsWith(Language("[1004]\n52=Fett, schr\xe4g\n62=Die \"Datei\"\n72=Eins\\nZwei\n82=Neu\n102=Neu\n"
                                    "892=Weg damit\n2012=Weg damit\n112=neu;(3/4)\n").file),
              "5 contains a comma\n6 contains a quotation mark\n7 contains a new line\n10 is also the title of item 8\n");
    int shipped = 0;
    for (const std::string& name : filesIn("data/Language")) {
        EXPECT_EQ(problemsWith(Language(readFile("data/Language/" + name)).file), "") << name;
        ++shipped;
    }
    EXPECT_GT(shipped, 0);
}

}  // namespace
}  // namespace korvane
