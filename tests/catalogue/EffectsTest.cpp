// What every tweak shows, writes, refuses and stamps, against what a person wrote down in tests/catalogue/effects.
// Whole registries are compared, so that one write too many fails as well.
#include "catalogue/Catalogue.h"
#include "regfile/RegFile.h"
#include "tests/catalogue/EffectsFixture.h"

#include <algorithm>

#ifndef KORVANE_SOURCE_DIR
#define KORVANE_SOURCE_DIR "."
#endif

namespace korvane {
namespace {

using Does = EffectData::Does;

constexpr const char* kFiles[] = {"accessories", "appearance", "desktop", "explorer", "filesystem", "login",
                                  "startmenu",   "shutdown",   "system",  "troubleshooting"};
constexpr const char* kWindows[] = {"xp", "95", "98", "me", "nt4", "2000", "2003", "vista"};

std::vector<EffectItem> itemsOf(const std::string& file) {
    std::map<std::string, std::string> macros;
    const std::string folder = std::string(KORVANE_SOURCE_DIR) + "/tests/catalogue/effects/";
    readEffects(folder + "common.txt", macros);
    return readEffects(folder + file + ".txt", macros);
}

class Effects : public EffectsFixture, public ::testing::WithParamInterface<const char*> {
protected:
    void check(const EffectItem& item);

private:
    using Steps = std::vector<std::string>;
    using Use = bool EffectPair::*;  // isShown or isWritten
    enum : int { kNoneMissing = -1, kAllMissing = -2 };

    void runOn(const std::string& windows);
    // The item over its keys, but for those that are missing. Each line's value is the n-th that is shown or written;
    // where a second line has the same control, the one behind it.
    void open(int missing, Use use, std::size_t n);
    void setAll(std::size_t n);
    // Makes what the lines say about the controls as they stand part of the expected registry, and notes each step.
    EffectData expectWrites(Steps& steps);
    void pressAsWritten();

    void checkEntries();
    void checkShows();
    void checkWrites(std::size_t times);
    void checkOrder(std::size_t n);
    void checkMissingKeys();
    void checkDeletions();
    void checkRefusal();

    // The n-th of the pairs in use, counted round; null when there is none.
    static const EffectPair* pairOf(const EffectLine& line, Use use, std::size_t n);
    std::size_t longest(Use use) const;

    const EffectItem* item_ = nullptr;
    std::vector<const EffectLine*> lines_;  // of the Windows of the moment
    std::vector<const EffectLine*> shown_;  // the first of each control, which is the one that is shown
};

void Effects::runOn(const std::string& windows) {
    windows_ = windows;
    lines_.clear();
    shown_.clear();
    for (const EffectLine& line : item_->lines) {
        if (line.windows.empty() || line.windows.contains(windows)) {
            lines_.push_back(&line);
            if (line.control != 0 && std::ranges::count(shown_, line.control, &EffectLine::control) == 0) {
                shown_.push_back(&line);
            }
        }
    }
}

const EffectPair* Effects::pairOf(const EffectLine& line, Use use, std::size_t n) {
    std::vector<const EffectPair*> pairs;
    for (const EffectPair& pair : line.pairs) {
        if (pair.*use) {
            pairs.push_back(&pair);
        }
    }
    return pairs.empty() ? nullptr : pairs[n % pairs.size()];
}

std::size_t Effects::longest(Use use) const {
    std::ptrdiff_t count = 0;
    for (const EffectLine* line : lines_) {
        count = std::max(count, std::ranges::count(line->pairs, true, use));
    }
    return static_cast<std::size_t>(count);
}

void Effects::open(int missing, Use use, std::size_t n) {
    startWith([&](MemoryRegistry& registry) {
        for (const EffectLine* line : lines_) {
            if (missing == kAllMissing || missing == line->place) {
                continue;
            }
            if (!line->opened.empty()) {
                change(registry, line->parent());
            }
            const EffectPair* pair = pairOf(*line, use, std::ranges::count(shown_, line) != 0 ? n : n + 1);
            if (pair != nullptr && pair->data.does == Does::Writes) {
                change(registry, line->key(), line->name, &pair->data);
            }
        }
    });
}

void Effects::setAll(std::size_t n) {
    for (const EffectLine* line : shown_) {
        const EffectPair* pair = pairOf(*line, &EffectPair::isWritten, n);
        if (pair != nullptr && pair->state != "*") {
            set(line->control, pair->state);
        }
    }
}

EffectData Effects::expectWrites(Steps& steps) {
    std::string before = dumpRegistry(expected_);
    const auto step = [&] {
        const std::string now = dumpRegistry(expected_);
        if (now != before) {
            steps.push_back(registryChanges(before, now));
        }
        before = now;
    };
    for (const EffectLine* line : lines_) {
        const std::string state = line->control == 0 ? "*" : stateOf(line->control);
        const auto pair = std::ranges::find_if(line->pairs, [&](const EffectPair& each) {
            return each.isWritten && (each.state == state || each.state == "*");
        });
        if (pair == line->pairs.end()) {
            ADD_FAILURE() << line->control << " with " << state << " is not said to write anything";
        } else if (pair->data.alert != 0) {
            return pair->data;
        } else if (pair->data.does != Does::Nothing) {
            const bool isReached = line->opened.empty() || exists(expected_, line->parent());
            if (!line->created.empty() && isReached && pair->data.does != Does::DeletesByPath) {
                change(expected_, line->key());
                step();
            }
            if (exists(expected_, line->key())) {
                change(expected_, line->key(), line->name, &pair->data);
                step();
            }
        }
    }
    return {};
}

void Effects::pressAsWritten() {
    Steps steps;
    const EffectData refused = expectWrites(steps);
    press(refused.alert, refused.dated);
}

// ---- What is checked of each item

void Effects::checkEntries() {
    open(kNoneMissing, &EffectPair::isShown, 0);
    for (const auto& [control, expected] : item_->entries) {
        const MemoryControl* found = page().find(control);
        std::string entries;
        for (const MemoryComboEntry& entry : found->entries) {
            entries += (entries.empty() ? "" : "|") + entry.text;
        }
        for (const MemoryListRow& row : found->rows) {
            entries += entries.empty() ? "" : "|";
            for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
                entries += (cell == 0 ? "" : " ") + row.cells[cell];
            }
        }
        std::string wanted = expected;
        if (const std::size_t dots = expected.find(".."); dots != std::string::npos) {
            wanted = expected.substr(0, dots);
            for (int i = std::stoi(expected) + 1; i <= std::stoi(expected.substr(dots + 2)); ++i) {
                wanted += '|' + std::to_string(i);
            }
        }
        EXPECT_EQ(entries, wanted) << control;
    }
}

void Effects::checkShows() {
    for (std::size_t n = 0; n < longest(&EffectPair::isShown); ++n) {
        open(kNoneMissing, &EffectPair::isShown, n);
        for (const EffectLine* line : shown_) {
            if (const EffectPair* pair = pairOf(*line, &EffectPair::isShown, n)) {
                EXPECT_EQ(stateOf(line->control), pair->state) << line->control << " shows " << line->name;
            }
        }
        pressAsWritten();
    }
}

void Effects::checkWrites(std::size_t times) {
    for (std::size_t n = 0; n < times; ++n) {
        open(kNoneMissing, &EffectPair::isWritten, n + 1);
        setAll(n);
        pressAsWritten();
        checkOrder(n);
    }
}

// Each change fails in its turn, with all that come after it: what is left shows the order.
void Effects::checkOrder(std::size_t n) {
    const auto prepare = [&] {
        open(kNoneMissing, &EffectPair::isWritten, n + 1);
        setAll(n);
    };
    Steps expected;
    prepare();
    expectWrites(expected);
    Steps steps;
    std::string before = program_.registryText();
    for (std::size_t allowed = 1; allowed < 50 && steps.size() < expected.size(); ++allowed) {
        prepare();
        program_.registry.denyChangesAfter(allowed);
        program_.apply();
        const std::string now = program_.registryText();
        if (now != before) {
            steps.push_back(registryChanges(before, now));
        }
        before = now;
    }
    EXPECT_EQ(steps, expected) << "the order of writes";
}

void Effects::checkMissingKeys() {
    const auto missingFrom = [](const EffectPair& pair) {
        return pair.isShown && pair.data.does == Does::Deletes;
    };
    open(kAllMissing, &EffectPair::isShown, 0);
    for (const EffectLine* line : shown_) {
        const auto pair = std::ranges::find_if(line->pairs, missingFrom);
        EXPECT_TRUE(pair == line->pairs.end() || stateOf(line->control) == pair->state) << line->control;
    }
    pressAsWritten();
    for (int missing = 0; !lines_.empty() && missing <= lines_.back()->place; ++missing) {
        open(missing, &EffectPair::isShown, 0);
        setAll(0);
        pressAsWritten();
    }
    open(kNoneMissing, &EffectPair::isShown, 0);
    setAll(0);
    for (const Root root : kRoots) {
        program_.registry.deny(root, "");
    }
    press(0, !item_->datedWhenOpen);
}

// A value is deleted by its key's path where the file says so, and otherwise in the opened key, which is skipped when
// it cannot be opened.
void Effects::checkDeletions() {
    const auto deletes = [](const EffectPair& pair) {
        return pair.isWritten && (pair.data.does == Does::Deletes || pair.data.does == Does::DeletesByPath);
    };
    open(kNoneMissing, &EffectPair::isWritten, 0);
    for (const EffectLine* line : shown_) {
        if (const auto pair = std::ranges::find_if(line->pairs, deletes); pair != line->pairs.end()) {
            set(line->control, pair->state);
        }
    }
    for (const EffectLine* line : lines_) {
        const auto pair = std::ranges::find_if(line->pairs, deletes);
        if (pair != line->pairs.end() && pair->data.does == Does::DeletesByPath) {
            change(expected_, line->key(), line->name, &pair->data);
        }
        for (const Root root : kRoots) {
            if (nameOf(root) == line->root) {
                program_.registry.denyFullAccess(root, line->path());
            }
        }
    }
    press(0, !item_->datedWhenOpen);
}

void Effects::checkRefusal() {
    open(kNoneMissing, &EffectPair::isShown, 0);
    setAll(1);
    std::map<int, std::string> states;
    for (const MemoryControl& control : page().allControls()) {
        const bool isInverted = control.visible && control.kind == ControlKind::CheckBox && item_->putsBack;
        const std::string state = stateOf(control.id);
        states[control.id] = isInverted ? (state == "0" ? "1" : "0") : state;
    }
    press(item_->alert, false);
    for (const auto& [control, state] : states) {
        EXPECT_EQ(stateOf(control), state) << control << " after the refusal";
    }
}

void Effects::check(const EffectItem& item) {
    item_ = &item;
    id_ = item.id;
    std::set<std::vector<const EffectLine*>> checked;
    for (const char* windows : kWindows) {
        SCOPED_TRACE(std::to_string(item.id) + ' ' + findTweak(item.id)->title.data() + " on " + windows);
        runOn(windows);
        if (!item.accepted.empty() && !item.accepted.contains(windows_)) {
            checkRefusal();
        } else if (lines_.empty()) {  // the cases tell the rest
            open(kNoneMissing, &EffectPair::isShown, 0);
            program_.apply();
            EXPECT_TRUE(program_.system.messages.shown.empty());
        } else if (!checked.insert(lines_).second) {
            checkWrites(1);
        } else {
            checkShows();
            checkWrites(longest(&EffectPair::isWritten));
            checkMissingKeys();
            checkDeletions();
        }
    }
    runOn("xp");
    checkEntries();
    for (const std::string& text : item.cases) {
        runCase(text);
    }
}

TEST_P(Effects, AreAsWrittenDown) {
    for (const EffectItem& item : itemsOf(GetParam())) {
        SCOPED_TRACE(std::string("effects/") + GetParam() + ".txt:" + std::to_string(item.line));
        check(item);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Effects, ::testing::ValuesIn(kFiles), [](const auto& file) { return std::string(file.param); });

TEST(EffectsFiles, SayOfEachItemThatCanBeAppliedWhatItDoes) {
    std::multiset<int> written;
    for (const char* file : kFiles) {
        for (const EffectItem& item : itemsOf(file)) {
            written.insert(item.id);
            const auto applies = [](const std::string& each) { return each.find(" ; apply") != std::string::npos; };
            EXPECT_TRUE(!item.lines.empty() || std::ranges::any_of(item.cases, applies)) << item.id;
        }
    }
    for (int id = 0; id < kItemCount; ++id) {
        EXPECT_EQ(written.count(id), findTweak(id)->hasApply() ? 1u : 0u) << id;
    }
}

}  // namespace
}  // namespace korvane
