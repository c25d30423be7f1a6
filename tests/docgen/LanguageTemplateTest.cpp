// The generated language file: it is current, it changes nothing, and it
// misses nothing that a user reads.
#include "docgen/LanguageTemplate.h"

#include "catalogue/Catalogue.h"
#include "text/WholeFile.h"
#include "tests/support/AppFixture.h"

namespace korvane {
namespace {

// The same file with a mark at the start of every value.
std::string marked(const std::string& file) {
    std::string result;
    for (std::size_t start = 0; start < file.size(); start = file.find('\n', start) + 1) {
        std::string line = file.substr(start, file.find('\n', start) + 1 - start);
        const std::size_t equals = line.find('=');
        if (line[0] != ';' && equals != std::string::npos) {
            line.insert(equals + (line[equals + 1] == '"' ? 2 : 1), "~");
        }
        result += line;
    }
    return result;
}

// Everything that the control says and a language file can change.
std::vector<std::string> readableTexts(const MemoryControl& control) {
    std::vector<std::string> texts;
    if (!control.isCombo() && !control.isList() && control.kind != ControlKind::Edit) {
        texts.push_back(control.text);
    }
    for (const MemoryComboEntry& entry : control.entries) {
        texts.push_back(entry.text);
    }
    for (const MemoryListColumn& column : control.columns) {
        texts.push_back(column.heading);
    }
    return texts;
}

TEST(LanguageTemplate, IsWhatIsShippedChangesNoTextAndReachesEveryTextOfEveryPage) {
    std::string shipped;
    EXPECT_TRUE(readWholeFile("data/Language/English.ini", 1 << 24, shipped));
    EXPECT_EQ(shipped, makeLanguageTemplate())
        << "renew it: build/native/make_language_template > data/Language/English.ini";
    MemoryProgram plain;
    MemoryProgram translated;
    MemoryProgram program;
    translated.setLanguageFile(makeLanguageTemplate());
    program.setLanguageFile(marked(makeLanguageTemplate()));
    ASSERT_TRUE(plain.start() && translated.start() && program.start());
    EXPECT_EQ(program.window.controls().caption(), "~Korvane Manager");
    for (int id = 0; id < kItemCount; ++id) {
        plain.select(id);
        translated.select(id);
        EXPECT_EQ(pageText(translated), pageText(plain)) << id;
        program.select(id);
        for (const int page : program.visiblePages()) {
            for (const MemoryControl& control : program.window.page(page)->allControls()) {
                for (const std::string& text : readableTexts(control)) {
                    const bool isSymbol = text == "..." || text.find_first_not_of("0123456789:") == std::string::npos;
                    // An INI file cannot hold a carriage return.
                    const bool cannotBeHeld = text.find('\r') != std::string::npos;
                    EXPECT_TRUE(!control.visible || control.kind == ControlKind::ColourCombo || isSymbol ||
                                cannotBeHeld || text.rfind('~', 1) < 2)
                        << "item " << id << ": " << text;
                }
            }
        }
    }
}

}  // namespace
}  // namespace korvane
