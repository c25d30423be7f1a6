// Rows with a single control, invented for the tests of the binding kinds, and the ways in which a stored value can be
// out of reach. All of them are about the value "V" of one key of the current user.
#pragma once

#include "res/ControlIds.h"
#include "tests/support/PageFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace korvane {

inline constexpr KeyPath kKey{Root::CurrentUser, "Software\\Invented"};

// The key with the value "V" and, to see that neighbours stay as they are, another one.
inline std::string stored(std::string_view data) {
    return "[HKCU\\Software\\Invented]\n\"Other\"=\"kept\"\n\"V\"=" + std::string(data);
}

inline constexpr std::string_view kNothingStored = "[HKCU\\Software\\Invented]\n\"Other\"=\"kept\"";

// Binary data: the given bytes ("31,00"), then zeros up to that many bytes.
inline std::string bytes(std::string first, std::size_t count) {
    while (first.size() < 3 * count - 1) {
        first += ",00";
    }
    return "hex:" + first;
}

enum class Obstacle { NoKey, NoValue, TooLong, KeyDenied, ParentDenied, RootDenied };
inline constexpr Obstacle kObstacles[] = {Obstacle::NoKey,     Obstacle::NoValue,      Obstacle::TooLong,
                                          Obstacle::KeyDenied, Obstacle::ParentDenied, Obstacle::RootDenied};
inline constexpr Obstacle kNothingOpens[] = {Obstacle::NoKey, Obstacle::KeyDenied, Obstacle::ParentDenied,
                                             Obstacle::RootDenied};

// Puts the obstacle before a value that begins with those bytes, and would be read well without it.
inline void putInTheWay(PageFixture& page, Obstacle obstacle, const std::string& firstBytes) {
    if (obstacle != Obstacle::NoKey) {
        const bool tooLong = obstacle == Obstacle::TooLong;
        page.load(obstacle == Obstacle::NoValue ? std::string(kNothingStored)
                                                : stored(bytes(firstBytes, tooLong ? 203 : 202)));
    }
    switch (obstacle) {
        case Obstacle::KeyDenied: page.registry.deny(kKey.root, kKey.path); break;
        case Obstacle::ParentDenied: page.registry.deny(kKey.root, "Software"); break;
        case Obstacle::RootDenied: page.registry.deny(kKey.root, ""); break;
        default: break;
    }
}

class OneControl : public PageFixture {
protected:
    OneControl(Page page, std::string_view blocks, Stamp stamp)
        : tweak_{.id = 7, .title = "T", .description = "D", .page = page, .stamp = stamp} {
        load(blocks);
    }
    Tweak tweak_;
};

// A page with one check box.
class OneBox : public OneControl {
public:
    explicit OneBox(const CheckBinding& binding, std::string_view blocks = {}, Stamp stamp = Stamp::BeforeOpening)
        : OneControl(Page::Checks, blocks, stamp), box_{.text = "Box", .binding = binding} {
        tweak_.boxes = {&box_, 1};
    }

    bool shown() {
        // Left over from an item shown before.
        dialog(Page::Checks).setCheck(IDC_CHECK1, 1);
        show(tweak_);
        return dialog(Page::Checks).check(IDC_CHECK1) == 1;
    }

    // The registry after a person has seen to it that the box is as wanted, and pressed "Apply Changes".
    std::string applied(bool checked) {
        if (shown() != checked) {
            EXPECT_TRUE(dialog(Page::Checks).clickCheckBox(IDC_CHECK1));
        }
        apply(tweak_);
        return state();
    }

private:
    CheckBox box_;
};

}  // namespace korvane
