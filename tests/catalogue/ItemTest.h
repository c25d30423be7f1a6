// What the tests of single items share: one item on one system, what it shows,
// what pressing the button changes, and what the program says about it.
#pragma once

#include "res/ControlIds.h"
#include "tests/support/AppFixture.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

namespace korvane {

// Items that share a gate: the Windows versions that they accept, with a blank around each, and what they say on
// others.
struct GateCase {
    std::string_view accepted;
    std::string_view alert;
    std::vector<int> ids;
};

class ItemTest : public OverPrograms {
protected:
    // The program over these keys, with the item selected.
    Program& showItem(int id, std::string_view keys, std::string_view windows = "xp") {
        start({.windows = windows, .registry = std::string(keys) + '\n' + std::string(kBareRegistry)});
        program().select(id);
        return program();
    }
    // What pressing the button changes in the registry.
    std::string applied() {
        EXPECT_TRUE(program().apply());
        return changes();
    }
    bool stamped(std::string_view title) { return dateOf(program(), title) == kLaterDay; }
    // The texts of the alerts shown so far.
    std::string alerts() {
        std::string texts;
        for (const MessageBoxRequest& message : program().messages()) {
            EXPECT_EQ(message.caption, "A L E R T");
            texts += message.text;
        }
        return texts;
    }

    std::uint32_t box(int control = IDC_CHECK1) { return shownPage(program())->check(control); }
    // The first two boxes, as digits.
    std::string boxes() { return std::to_string(box(IDC_CHECK1)) + std::to_string(box(IDC_CHECK2)); }
    std::string edit(int control = IDC_EDIT1) { return shownPage(program())->text(control); }
    int combo(int control = IDC_COMBO1) { return shownPage(program())->comboSelection(control); }

    // Every Windows either lets an item pass without a word, or hears its alert and keeps registry, page and date.
    void expectGates(std::span<const GateCase> gates, std::string_view keys) {
        for (const std::string_view windows : everyWindows()) {
            for (const GateCase& gate : gates) {
                const bool accepted = gate.accepted.find(' ' + std::string(windows) + ' ') != std::string_view::npos;
                for (const int id : gate.ids) {
                    SCOPED_TRACE(std::string(windows) + " item " + std::to_string(id));
                    showItem(id, keys, windows);
                    program().click(IDC_CHECK1);
                    program().type(IDC_EDIT1, "7");
                    program().pick(IDC_COMBO1, 1);
                    const std::string page = pageText(program());
                    EXPECT_EQ(applied().empty(), !accepted);
                    EXPECT_EQ(alerts(), accepted ? "" : gate.alert);
                    EXPECT_EQ(program().dateFile().find(kLaterDay) != std::string::npos, accepted);
                    EXPECT_EQ(pageText(program()), page);
                }
            }
        }
    }
};

}  // namespace korvane
