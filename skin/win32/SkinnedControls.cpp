// Pages, labels, check boxes, buttons and the divider, as the skin paints them.
#include "skin/win32/SkinEngine.h"
#include "skin/win32/SkinnedFrame.h"
#include "skin/win32/SkinnedWindow.h"

#include "text/EqualIgnoringCase.h"

#include <algorithm>

namespace korvane {
namespace {

// Newer than the oldest Windows, which answer 0.
constexpr UINT kQueryUiState = 0x0129;
constexpr UINT kUpdateUiState = 0x0128;
constexpr LRESULT kHideFocus = 1;
constexpr LRESULT kHideAccelerators = 2;

constexpr UINT_PTR kHotTimer = 0x4B53;
constexpr UINT kHotInterval = 60;  // milliseconds

constexpr int kCheckSize = 13;  // this and what follows: pixels at 96 DPI
constexpr int kCheckGap = 5;
constexpr int kFocusMargin = 1;

// ---- Pages

class SkinnedPage final : public SkinnedWindow {
public:
    using SkinnedWindow::SkinnedWindow;
    ~SkinnedPage() override { DeleteObject(brush_); }

    void repaint() override {
        DeleteObject(brush_);
        brush_ = nullptr;
        SkinnedWindow::repaint();
    }

private:
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_ERASEBKGND: return fill(reinterpret_cast<HDC>(wParam));
            case WM_PRINTCLIENT: return fill(reinterpret_cast<HDC>(wParam));
            case WM_CTLCOLORSTATIC: return colourStatic(wParam, lParam);
            default: return callOriginal(message, wParam, lParam);
        }
    }

    LRESULT fill(HDC dc) const {
        const SIZE client = clientSize();
        PaintBuffer buffer(client.cx, client.cy);
        if (buffer.valid()) {
            engine().drawSurface(window(), buffer);
            buffer.copyTo(dc, 0, 0);
        }
        return TRUE;
    }

    // Statics that are no labels of the skin; fields that cannot be edited ask as well and keep the system's colours.
    LRESULT colourStatic(WPARAM wParam, LPARAM lParam) {
        char name[16] = "";
        GetClassNameA(reinterpret_cast<HWND>(lParam), name, sizeof name);
        if (lstrcmpiA(name, "Static") != 0) {
            return callOriginal(WM_CTLCOLORSTATIC, wParam, lParam);
        }
        const SkinPalette& palette = engine().palette();
        const StateLook& colours = look().of(ControlState::Normal);
        if (brush_ == nullptr) {
            const SkinColour back{ColourSource::Back, 0};
            brush_ = CreateSolidBrush(colourOf(palette.of(colours.fill ? colours.fill->top : back)));
        }
        const auto dc = reinterpret_cast<HDC>(wParam);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, colourOf(palette.of(colours.text)));
        return reinterpret_cast<LRESULT>(brush_);
    }

    HBRUSH brush_ = nullptr;
};

// ---- Labels

// A sunken label is a panel, with its first line as a heading.
class SkinnedLabel final : public SkinnedWindow {
public:
    SkinnedLabel(Win32SkinEngine& engine, HWND window, std::string element)
        : SkinnedWindow(engine, window, std::move(element)), panel_(isSunken()) {
        if (panel_) {
            // The panel has an edge of its own.
            SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) & ~SS_SUNKEN);
            SetWindowLongA(window, GWL_EXSTYLE, GetWindowLongA(window, GWL_EXSTYLE) & ~WS_EX_STATICEDGE);
            SetWindowPos(window, nullptr, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
            SetPropA(window, kPanel, reinterpret_cast<HANDLE>(1));
        }
    }

private:
    static constexpr char kPanel[] = "Korvane.Panel";

    // A label that is skinned once more has lost the style already.
    bool isSunken() const {
        return (GetWindowLongA(window(), GWL_STYLE) & SS_SUNKEN) != 0 || GetPropA(window(), kPanel) != nullptr;
    }

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_ERASEBKGND: return 1;
            case WM_PAINT:
            case WM_PRINTCLIENT: return paintWhole(message, wParam);
            case WM_SETTEXT:
            case WM_ENABLE: return callWithoutPainting(message, wParam, lParam);
            case WM_DESTROY: RemovePropA(window(), kPanel); break;
            default: break;
        }
        return callOriginal(message, wParam, lParam);
    }

    void draw(PaintBuffer& buffer) override {
        engine().drawSurface(window(), buffer);
        const SIZE client = clientSize();
        const ControlState state = IsWindowEnabled(window()) ? ControlState::Normal : ControlState::Disabled;
        RECT area{0, 0, client.cx, client.cy};
        if (panel_) {
            Canvas canvas = buffer.canvas();
            ElementPainter(canvas, engine().palette()).background({0, 0, client.cx, client.cy}, look(), state);
            const SkinPalette& palette = engine().palette();
            area.left += palette.pixels(look().margins.left);
            area.top += palette.pixels(look().margins.top);
            area.right -= palette.pixels(look().margins.right);
            area.bottom -= palette.pixels(look().margins.bottom);
        }
        SetBkMode(buffer.dc(), TRANSPARENT);
        SetTextColor(buffer.dc(), textColour(state));
        const auto font = reinterpret_cast<HFONT>(SendMessageA(window(), WM_GETFONT, 0, 0));
        const std::string all = text();
        const std::size_t line = panel_ ? all.find('\n') : std::string::npos;
        if (line != std::string::npos) {
            area.top += drawText(buffer.dc(), all.substr(0, line), area, engine().font(look().font, font, true));
            drawText(buffer.dc(), all.substr(line + 1), area, engine().font(look().font, font));
        } else {
            drawText(buffer.dc(), all, area, engine().font(look().font, font));
        }
    }

    COLORREF textColour(ControlState state) const {
        const SkinPalette& palette = engine().palette();
        const SkinColour panelText{ColourSource::PanelText, 0};
        return colourOf(palette.of(panel_ && state == ControlState::Normal ? panelText : look().of(state).text));
    }

    // The height that it took.
    int drawText(HDC dc, const std::string& part, RECT area, HFONT font) const {
        const LONG style = GetWindowLongA(window(), GWL_STYLE);
        const UINT format = DT_LEFT | DT_WORDBREAK | DT_EXPANDTABS | (style & SS_NOPREFIX ? DT_NOPREFIX : 0u);
        const HGDIOBJ oldFont = font != nullptr ? SelectObject(dc, font) : nullptr;
        const int height = DrawTextA(dc, part.c_str(), -1, &area, format);
        if (oldFont != nullptr) {
            SelectObject(dc, oldFont);
        }
        return height;
    }

    bool panel_;
};

// ---- Check boxes and buttons

class SkinnedButton final : public SkinnedWindow {
public:
    using SkinnedWindow::SkinnedWindow;
    ~SkinnedButton() override {
        if (hot_) {
            KillTimer(window(), kHotTimer);
        }
    }

private:
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_ERASEBKGND: return 1;
            case WM_PAINT:
            case WM_PRINTCLIENT: return paintWhole(message, wParam);
            case BM_SETCHECK:
            case BM_SETSTATE:
            case BM_SETSTYLE:
            case WM_SETTEXT:
            case WM_ENABLE:
            case WM_SETFOCUS:
            case WM_KILLFOCUS:
            case kUpdateUiState: return callWithoutPainting(message, wParam, lParam);
            case WM_MOUSEMOVE: setHot(true); break;
            case WM_TIMER:
                if (wParam == kHotTimer) {
                    setHot(isUnderMouse());
                    return 0;
                }
                break;
            default: break;
        }
        return callOriginal(message, wParam, lParam);
    }

    // The oldest Windows do not tell when the mouse leaves a window.
    bool isUnderMouse() const {
        POINT point{};
        GetCursorPos(&point);
        RECT rect{};
        GetWindowRect(window(), &rect);
        return PtInRect(&rect, point) && IsWindowVisible(window());
    }

    void setHot(bool hot) {
        if (hot == hot_) {
            return;
        }
        hot_ = hot;
        if (hot) {
            SetTimer(window(), kHotTimer, kHotInterval, nullptr);
        } else {
            KillTimer(window(), kHotTimer);
        }
        InvalidateRect(window(), nullptr, FALSE);
    }

    LONG type() const { return GetWindowLongA(window(), GWL_STYLE) & BS_TYPEMASK; }
    bool isCheckBox() const { return type() == BS_AUTOCHECKBOX || type() == BS_CHECKBOX; }
    bool hasFocus() const {
        return GetFocus() == window() && !(SendMessageA(window(), kQueryUiState, 0, 0) & kHideFocus);
    }

    ControlState state() const {
        if (!IsWindowEnabled(window())) {
            return ControlState::Disabled;
        }
        if (SendMessageA(window(), BM_GETSTATE, 0, 0) & BST_PUSHED) {
            return ControlState::Pressed;
        }
        if (hot_) {
            return ControlState::Hot;
        }
        return type() == BS_DEFPUSHBUTTON || GetFocus() == window() ? ControlState::Focused : ControlState::Normal;
    }

    void draw(PaintBuffer& buffer) override {
        engine().drawSurface(window(), buffer);
        const auto own = reinterpret_cast<HFONT>(SendMessageA(window(), WM_GETFONT, 0, 0));
        const HFONT font = engine().font(look().font, own);
        const HGDIOBJ oldFont = font != nullptr ? SelectObject(buffer.dc(), font) : nullptr;
        SetBkMode(buffer.dc(), TRANSPARENT);
        SetTextColor(buffer.dc(), colourOf(engine().palette().of(look().of(state()).text)));
        if (isCheckBox()) {
            drawCheckBox(buffer);
        } else {
            drawPushButton(buffer);
        }
        if (oldFont != nullptr) {
            SelectObject(buffer.dc(), oldFont);
        }
    }

    UINT textFormat() const {
        const bool hidden = (SendMessageA(window(), kQueryUiState, 0, 0) & kHideAccelerators) != 0;
        constexpr UINT kHidePrefix = 0x00100000;
        return DT_SINGLELINE | (hidden ? kHidePrefix : 0u);
    }

    void drawCheckBox(PaintBuffer& buffer) {
        const SIZE client = clientSize();
        const SkinPalette& palette = engine().palette();
        const int side = std::min<int>(palette.pixels(kCheckSize), client.cy);
        const int top = (client.cy - side) / 2;
        const bool ticked = SendMessageA(window(), BM_GETCHECK, 0, 0) == BST_CHECKED;
        {
            Canvas canvas = buffer.canvas();
            ElementPainter(canvas, palette).checkSquare({0, top, side, top + side}, look(), state(), ticked);
        }
        const std::string label = text();
        RECT extent{};
        DrawTextA(buffer.dc(), label.c_str(), -1, &extent, DT_CALCRECT | textFormat());
        RECT area{side + palette.pixels(kCheckGap), (client.cy - extent.bottom) / 2, client.cx, client.cy};
        area.bottom = area.top + extent.bottom;
        DrawTextA(buffer.dc(), label.c_str(), -1, &area, textFormat());
        if (hasFocus() && !label.empty()) {
            RECT frame{area.left - kFocusMargin - 1, area.top - kFocusMargin, area.left + extent.right + kFocusMargin,
                       area.bottom + kFocusMargin};
            const RECT whole{0, 0, client.cx, client.cy};
            IntersectRect(&frame, &frame, &whole);
            SetTextColor(buffer.dc(), RGB(0, 0, 0));
            DrawFocusRect(buffer.dc(), &frame);
        }
    }

    void drawPushButton(PaintBuffer& buffer) {
        const SIZE client = clientSize();
        const SkinPalette& palette = engine().palette();
        {
            Canvas canvas = buffer.canvas();
            ElementPainter(canvas, palette).background({0, 0, client.cx, client.cy}, look(), state());
        }
        RECT area{0, 0, client.cx, client.cy};
        const std::string label = text();
        DrawTextA(buffer.dc(), label.c_str(), -1, &area, DT_CENTER | DT_VCENTER | textFormat());
        if (hasFocus()) {
            InflateRect(&area, -palette.pixels(3), -palette.pixels(3));
            SetTextColor(buffer.dc(), RGB(0, 0, 0));
            DrawFocusRect(buffer.dc(), &area);
        }
    }

    bool hot_ = false;
};

// ---- The divider

class SkinnedSplitter final : public SkinnedWindow {
public:
    using SkinnedWindow::SkinnedWindow;

private:
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_ERASEBKGND: return 1;
            case WM_PAINT:
            case WM_PRINTCLIENT: return paintWhole(message, wParam);
            default: return callOriginal(message, wParam, lParam);
        }
    }

    void draw(PaintBuffer& buffer) override {
        engine().drawSurface(window(), buffer);
        Canvas canvas = buffer.canvas();
        ElementPainter(canvas, engine().palette())
            .background({0, 0, canvas.width(), canvas.height()}, look(), ControlState::Normal);
    }
};

template <class Window>
std::unique_ptr<SkinnedWindow> make(Win32SkinEngine& engine, HWND window, const std::string& element) {
    return std::make_unique<Window>(engine, window, element);
}

}  // namespace

std::unique_ptr<SkinnedWindow> makeSkinnedWindow(Win32SkinEngine& engine, HWND window, const std::string& element) {
    const struct {
        const char* element;
        std::unique_ptr<SkinnedWindow> (*make)(Win32SkinEngine&, HWND, const std::string&);
    } kinds[] = {{"Main", make<SkinnedFrame>},     {"SubMain", make<SkinnedPage>},   {"CheckBox", make<SkinnedButton>},
                 {"Button", make<SkinnedButton>},  {"Label", make<SkinnedLabel>},    {"Splitter", make<SkinnedSplitter>}};
    for (const auto& kind : kinds) {
        if (equalIgnoringCase(kind.element, element)) {
            return kind.make(engine, window, element);
        }
    }
    return nullptr;
}

}  // namespace korvane
