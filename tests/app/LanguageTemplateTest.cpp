// The generated language file: it is current, it changes nothing, and it
// misses nothing that a user reads.
#include "app/LanguageTemplate.h"

#include "catalogue/Catalogue.h"
#include "tests/support/AppFixture.h"

#include <cstdio>

namespace korvane {
namespace {

std::string readAll(const char* path) {
    std::string text;
    if (std::FILE* file = std::fopen(path, "rb")) {
        char part[4096];
        for (std::size_t got; (got = std::fread(part, 1, sizeof part, file)) > 0;) {
            text.append(part, got);
        }
        std::fclose(file);
    }
    return text;
}

// The same file with a mark at the start of every value.
std::string marked(const std::string& file) {
    std::string result;
    for (std::size_t start = 0; start < file.size();) {
        const std::size_t end = file.find('\n', start) + 1;
        std::string line = file.substr(start, end - start);
        const std::size_t equals = line.find('=');
        if (line[0] != ';' && equals != std::string::npos) {
            line.insert(equals + (line[equals + 1] == '"' ? 2 : 1), "~");
        }
        result += line;
        start = end;
    }
    return result;
}

// Everything that the shown page says, hidden controls left out.
std::vector<std::string> readableTexts(const MemoryDialog& page) {
    std::vector<std::string> texts;
    for (const MemoryControl& control : page.allControls()) {
        if (!control.visible || control.kind == ControlKind::Edit || control.kind == ControlKind::ColourCombo) {
            continue;
        }
        if (control.kind != ControlKind::Combo && control.kind != ControlKind::List &&
            control.kind != ControlKind::CheckedList) {
            texts.push_back(control.text);
        }
        for (const MemoryComboEntry& entry : control.entries) {
            texts.push_back(entry.text);
        }
        for (const MemoryListColumn& column : control.columns) {
            texts.push_back(column.heading);
        }
    }
    return texts;
}

TEST(LanguageTemplate, IsTheFileThatIsShipped) {
    EXPECT_EQ(readAll("data/Language/English.ini"), makeLanguageTemplate())
        << "renew it: build/native/make_language_template > data/Language/English.ini";
}

TEST(LanguageTemplate, ChangesNoTextOfAnyPage) {
    MemoryProgram plain;
    MemoryProgram translated;
    translated.setLanguageFile(makeLanguageTemplate());
    ASSERT_TRUE(plain.start());
    ASSERT_TRUE(translated.start());
    for (int id = 0; id < kItemCount; ++id) {
        if (findTweak(id)->hasShow()) {
            plain.select(id);
            translated.select(id);
            EXPECT_EQ(pageText(translated), pageText(plain)) << id;
        }
    }
}

TEST(LanguageTemplate, ReachesEveryTextOfEveryPage) {
    MemoryProgram program;
    program.setLanguageFile(marked(makeLanguageTemplate()));
    ASSERT_TRUE(program.start());
    EXPECT_EQ(program.window.controls().caption(), "~Korvane Manager");
    for (int id = 0; id < kItemCount; ++id) {
        if (!findTweak(id)->hasShow()) {
            continue;
        }
        program.select(id);
        const int page = program.visiblePages().front();
        for (const std::string& text : readableTexts(*program.window.page(page))) {
            const bool isSymbol = text.empty() || text == "..." ||
                                  text.find_first_not_of("0123456789:") == std::string::npos;
            // An INI file cannot hold a carriage return.
            const bool cannotBeHeld = text.find('\r') != std::string::npos;
            EXPECT_TRUE(isSymbol || cannotBeHeld || text.rfind('~', 1) < 2) << "item " << id << ": " << text;
        }
    }
}

}  // namespace
}  // namespace korvane
