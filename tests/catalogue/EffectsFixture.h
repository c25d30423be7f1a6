// One program over a registry that is as a test wants it, and beside it the registry that it should become.
#pragma once

#include "tests/catalogue/EffectsFile.h"
#include "tests/support/AppFixture.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

inline constexpr Root kRoots[] = {Root::ClassesRoot, Root::CurrentUser, Root::LocalMachine, Root::Users};

std::string_view nameOf(Root root);  // "HKCU"
bool exists(MemoryRegistry& registry, const std::string& key);
// Makes a key that is missing, and writes or deletes a value of it.
void change(MemoryRegistry& registry, const std::string& key, const std::string& name = {},
            const EffectData* data = nullptr);

class EffectsFixture : public ::testing::Test {
protected:
    EffectsFixture() { EXPECT_TRUE(program_.start()); }

    // Fills both registries, and selects the item anew on the Windows of the moment.
    void startWith(const std::function<void(MemoryRegistry&)>& fill);
    MemoryDialog& page() { return *program_.window.page(program_.visiblePages().front()); }
    // The states of the files: a box's digit, a field's text, a combo's or list's index, the checks of a list's rows.
    std::string stateOf(int control);
    void set(int control, const std::string& state);
    // Presses the button, and compares registry, alert and date with what is expected.
    void press(int alert, bool isDated);
    void runCase(const std::string& text);

    int id_ = 0;
    std::string windows_;
    MemoryProgram program_;
    MemoryRegistry expected_;

private:
    void runStep(const std::string& text);
    void endPress();

    int day_ = 0;
    struct {
        bool isPressed = false;
        int alert = 0;
        bool isDated = true;
    } pending_;  // of a case: what it says behind "apply"
};

}  // namespace korvane
