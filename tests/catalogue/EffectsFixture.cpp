// The program over a registry that is as a test wants it, and the registry that it should become.
#include "tests/catalogue/EffectsFixture.h"

#include "app/StringTable.h"
#include "catalogue/Catalogue.h"
#include "regfile/RegFile.h"

#include <algorithm>
#include <utility>

namespace korvane {
namespace {

// The path of "HKCU\path" below its root, and the root.
std::string below(MemoryRegistry& registry, const std::string& key, RegistryHandle& root) {
    const std::size_t end = std::min(key.find('\\'), key.size());
    for (const Root each : kRoots) {
        if (nameOf(each) == key.substr(0, end)) {
            EXPECT_EQ(registry.connect(each, root), Status::Success);
        }
    }
    EXPECT_TRUE(root) << key;
    return key.substr(std::min(end + 1, key.size()));
}

// "has KEY : name type data", "writes" the same, "gone KEY : name", or "gone KEY" for the key with all below it.
void changeAsSaid(MemoryRegistry& registry, const std::string& text) {
    const std::vector<std::string> pieces = splitOutsideQuotes(text, " : ");
    const std::string key = pieces[0].substr(pieces[0].find(' ') + 1);
    const bool isGone = text.starts_with("gone ");
    if (isGone && pieces.size() == 1) {
        RegistryHandle root;
        const std::string path = below(registry, key, root);
        EXPECT_EQ(registry.deleteTree(root, path), Status::Success) << key;
        return;
    }
    change(registry, key);
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const std::vector<std::string> value = splitOutsideQuotes(pieces[i]);
        const EffectData data = isGone ? parseEffectData("", "-") : parseEffectData(value.at(1), value.at(2));
        change(registry, key, value[0] == "@" ? "" : withoutQuotes(value[0]), &data);
    }
}

}  // namespace

std::string_view nameOf(Root root) { return kRegistryRoots[static_cast<std::size_t>(root)].shortName; }

bool exists(MemoryRegistry& registry, const std::string& key) {
    RegistryHandle root, opened;
    const std::string path = below(registry, key, root);
    return registry.openKey(root, path, opened) == Status::Success;
}

void change(MemoryRegistry& registry, const std::string& key, const std::string& name, const EffectData* data) {
    RegistryHandle root, opened;
    const std::string path = below(registry, key, root);
    ASSERT_EQ(registry.createKey(root, path, opened), Status::Success) << key;
    if (data != nullptr && data->does == EffectData::Does::Writes) {
        ignoreFailure(registry.setValue(opened, name, data->type, std::as_bytes(std::span(data->bytes))));
    } else if (data != nullptr) {
        ignoreFailure(registry.deleteValue(opened, "", name));
    }
}

void EffectsFixture::startWith(const std::function<void(MemoryRegistry&)>& fill) {
    program_.registry.allowAll();
    for (MemoryRegistry* registry : {&program_.registry, &expected_}) {
        registry->tree() = RegistryTree();
        change(*registry, "HKCU\\Software");
        fill(*registry);
    }
    program_.system.messages.shown.clear();
    program_.system.version.record = versionNamed(windows_).value();
    program_.select(0);
    program_.select(id_);
}

std::string EffectsFixture::stateOf(int control) {
    const MemoryControl* found = page().find(control);
    switch (found->kind) {
        case ControlKind::CheckBox: return std::to_string(found->check);
        case ControlKind::Combo: return std::to_string(found->selection);
        case ControlKind::ColourCombo: return found->entries.at(static_cast<std::size_t>(found->selection)).text;
        case ControlKind::List: return std::to_string(shownPage(program_)->selectedRow(control));
        case ControlKind::CheckedList: {
            std::string checks;
            for (const MemoryListRow& row : found->rows) {
                checks += row.checked ? 'x' : '.';
            }
            return checks;
        }
        default: return found->text;
    }
}

void EffectsFixture::set(int control, const std::string& state) {
    const MemoryControl& found = *page().find(control);
    bool isDone = stateOf(control) == state;
    if (isDone) {
        return;
    }
    switch (found.kind) {
        case ControlKind::CheckBox: isDone = program_.click(control); break;
        case ControlKind::Combo:  // typing selects nothing, even an entry's own text
            isDone = state == "-1" ? program_.type(control, "0") : program_.pick(control, std::stoi(state));
            break;
        case ControlKind::ColourCombo: {
            const auto entry = std::ranges::find(found.entries, state, &MemoryComboEntry::text);
            isDone = program_.pick(control, static_cast<int>(entry - found.entries.begin()));
            break;
        }
        case ControlKind::List: isDone = program_.selectRow(control, std::stoi(state)); break;
        case ControlKind::CheckedList:
            for (std::size_t row = 0; row < state.size() && row < found.rows.size(); ++row) {
                isDone = found.rows[row].checked == (state[row] == 'x') ||
                         program_.clickRow(control, static_cast<int>(row));
            }
            break;
        default: isDone = program_.type(control, state); break;
    }
    EXPECT_TRUE(isDone) << control << " cannot be set to " << state;
    EXPECT_EQ(stateOf(control), state) << control;
}

void EffectsFixture::press(int alert, bool isDated) {
    ++day_;
    const UtcDate today{.year = 2007 + day_ / 336, .month = 1 + day_ / 28 % 12, .day = 1 + day_ % 28};
    program_.setToday(today);
    program_.system.messages.shown.clear();
    EXPECT_TRUE(program_.apply());
    EXPECT_EQ(registryChanges(dumpRegistry(expected_), program_.registryText()), "") << "what is wrong has a minus";
    std::string alerts;
    for (const MessageBoxRequest& message : program_.system.messages.shown) {
        alerts += message.text;
    }
    EXPECT_EQ(alerts, alert == 0 ? "" : builtInString(alert));
    const std::string text =
        std::to_string(today.month) + '/' + std::to_string(today.day) + '/' + std::to_string(today.year);
    EXPECT_EQ(dateOf(program_, findTweak(id_)->title) == text, isDated) << "dated";
}

void EffectsFixture::endPress() {
    if (std::exchange(pending_.isPressed, false)) {
        press(std::exchange(pending_.alert, 0), std::exchange(pending_.isDated, true));
    }
}

void EffectsFixture::runStep(const std::string& text) {
    const std::vector<std::string> words = splitOutsideQuotes(text);
    const std::string& verb = words.at(0);
    if (verb == "writes" || verb == "gone") {
        changeAsSaid(expected_, text);
    } else if (verb == "alert") {
        pending_.alert = std::stoi(words.at(1));
    } else if (verb == "undated") {
        pending_.isDated = false;
    } else {
        endPress();
        pending_.isPressed = verb == "apply";
        if (verb == "show") {
            program_.select(0);
            program_.select(id_);
        } else if (verb == "allow") {
            program_.registry.denyChangesAfter(static_cast<std::size_t>(std::stoi(words.at(1))));
        }
        for (std::size_t i = 1; i < words.size() && verb != "allow"; ++i) {
            const std::size_t equals = words[i].find('=');
            const int control = std::stoi(words[i]);
            const std::string state = withoutQuotes(words[i].substr(equals + 1));
            if (verb == "set") {
                set(control, state);
            } else {
                EXPECT_EQ(verb, "shows");
                EXPECT_EQ(stateOf(control), state) << control;
            }
        }
    }
}

void EffectsFixture::runCase(const std::string& text) {
    std::vector<std::string> steps = splitOutsideQuotes(text, " ; ");
    std::set<std::string> windows{"xp"};
    if (steps.at(0).starts_with("on ")) {
        windows = windowsNamed(steps[0].substr(3));
        steps.erase(steps.begin());
    }
    for (const std::string& each : windows) {
        SCOPED_TRACE(each + " case " + text);
        windows_ = each;
        startWith([&](MemoryRegistry& registry) {
            for (const std::string& step : steps) {
                if (step.starts_with("has ")) {
                    changeAsSaid(registry, step);
                }
            }
        });
        for (const std::string& step : steps) {
            if (!step.starts_with("has ")) {
                runStep(step);
            }
        }
        endPress();
    }
}

}  // namespace korvane
