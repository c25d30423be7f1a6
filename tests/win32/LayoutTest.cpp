// Every page as the user gets to see it: the program runs in memory, and what
// it shows is measured with the font of the real dialogs. Nothing overlaps,
// nothing is cut off.
#include "tests/support/AppFixture.h"
#include "tests/win32/Win32DialogEnvironment.h"

#include "platform/memory/DialogTemplates.h"
#include "res/ControlIds.h"
#include "skin/win32/SkinEngine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace korvane {
namespace {

// What the main window shows of a page: to three dialog units from its right edge, and above "Apply Changes".
constexpr int kVisibleRight = ((500 - 3) * 6 + 2) / 4;
constexpr int kCheckMark = 18;     // the box before the text
constexpr int kButtonBorder = 4;
constexpr int kComboMargins = 8 + 17;  // borders and spaces, and the arrow
constexpr int kFocusFrame = 1;

bool overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

class LayoutTest : public ::testing::Test {
protected:
    LayoutTest() : dc(CreateCompatibleDC(nullptr)) {
        environment.open(IDD_CHECKS);
        const HWND label = environment.control(IDD_CHECKS, IDC_NOTE);
        const auto font = reinterpret_cast<HFONT>(SendMessageA(label, WM_GETFONT, 0, 0));
        SelectObject(dc, font);
        LOGFONTA description{};
        GetObjectA(font, sizeof description, &description);
        description.lfWeight = FW_BOLD;
        bold = CreateFontIndirectA(&description);
        EXPECT_EQ(engine.LoadSkin("data/Skin/skin.skn"), 0);
        EXPECT_EQ(engine.ApplySkinElement(environment.open(IDD_CHECKS), IDC_HEADER, "Label"), 0);
    }
    ~LayoutTest() override {
        DeleteDC(dc);
        DeleteObject(bold);
    }

    // A header is a panel with its first line in bold.
    SIZE headerExtent(const std::string& text, int width) {
        const std::size_t line = text.find('\n');
        const HGDIOBJ plain = SelectObject(dc, bold);
        const SIZE title = extent(text.substr(0, line), width, DT_WORDBREAK | DT_NOPREFIX);
        SelectObject(dc, plain);
        const SIZE rest = extent(line == std::string::npos ? "" : text.substr(line + 1), width,
                                 DT_WORDBREAK | DT_NOPREFIX);
        return {std::max(title.cx, rest.cx), title.cy + rest.cy};
    }

    // The room that a text takes, wrapped at that width.
    SIZE extent(const std::string& text, int width, UINT format) const {
        RECT area{0, 0, width, 0};
        DrawTextA(dc, text.c_str(), -1, &area, DT_CALCRECT | DT_EXPANDTABS | format);
        return {area.right, area.bottom};
    }

    void expectFits(const MemoryControl& control) {
        const Rect& rect = control.rect;
        SIZE room{rect.width(), rect.height()};
        SIZE text{};
        switch (control.kind) {
            case ControlKind::Header: {
                const skin::SkinMargins& margins = engine.look("Label").margins;
                room = {room.cx - margins.left - margins.right, room.cy - margins.top - margins.bottom};
                text = headerExtent(control.text, room.cx);
                break;
            }
            case ControlKind::Label:
            case ControlKind::Note: text = extent(control.text, room.cx, DT_WORDBREAK | DT_NOPREFIX); break;
            case ControlKind::CheckBox:
                room.cx -= kCheckMark + kFocusFrame;
                text = extent(control.text, 0, DT_SINGLELINE);
                break;
            case ControlKind::Button:
                room.cx -= 2 * kButtonBorder;
                text = extent(control.text, 0, DT_SINGLELINE);
                break;
            default: break;
        }
        for (const MemoryComboEntry& entry : control.entries) {
            EXPECT_LE(extent(entry.text, 0, DT_SINGLELINE).cx, rect.width() - kComboMargins) << entry.text;
        }
        EXPECT_LE(text.cx, room.cx) << control.id << ": " << control.text;
        EXPECT_LE(text.cy, room.cy) << control.id << ": " << control.text;
    }

    Win32DialogEnvironment environment;
    skin::Win32SkinEngine engine;
    HDC dc;
    HFONT bold = nullptr;
};

TEST_F(LayoutTest, EveryItemsPageIsWholeAndReadable) {
    MemoryProgram program;
    ASSERT_TRUE(program.start());
    int pages = 0;
    for (int id = 0; id < 311; ++id) {
        SCOPED_TRACE(id);
        program.select(id);
        for (const int templateId : program.visiblePages()) {
            ++pages;
            const MemoryDialog& page = *program.window.page(templateId);
            const Rect area = program.page(templateId).rect();
            std::vector<MemoryControl> controls = page.allControls();
            std::erase_if(controls, [](const MemoryControl& control) { return !control.visible; });
            const Rect apply = program.window.dialog().controlRect(IDC_APPLY);
            const Rect applyInPage{apply.left - area.left, apply.top - area.top, apply.right - area.left,
                                   apply.bottom - area.top};
            const Rect divider = program.window.dividerRect();
            for (std::size_t i = 0; i < controls.size(); ++i) {
                const Rect& rect = controls[i].rect;
                expectFits(controls[i]);
                EXPECT_FALSE(overlap(rect, applyInPage)) << controls[i].id;
                EXPECT_GT(area.left + rect.left, divider.right) << controls[i].id;
                EXPECT_LE(area.left + rect.right, kVisibleRight) << controls[i].id;
                EXPECT_LE(rect.bottom, area.height()) << controls[i].id;
                for (std::size_t j = i + 1; j < controls.size(); ++j) {
                    EXPECT_FALSE(overlap(rect, controls[j].rect)) << controls[i].id << " and " << controls[j].id;
                }
            }
        }
    }
    EXPECT_GT(pages, 250);
}

}  // namespace
}  // namespace korvane
