// Pages, labels and the splitter, and which element stands for which kind of window.
#include "platform/win32/WindowFunctions.h"
#include "skin/win32/GdiCanvas.h"
#include "skin/win32/SkinEngine.h"
#include "skin/win32/SkinnedButton.h"
#include "skin/win32/SkinnedFrame.h"
#include "text/CaseFolding.h"

#include <utility>

namespace korvane::skin {
namespace {

// ---- Pages

class SkinnedPage final : public SkinnedWindow {
public:
    using SkinnedWindow::SkinnedWindow;

    void repaint() override {
        brush_.reset();
        SkinnedWindow::repaint();
    }

private:
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_ERASEBKGND:
            case WM_PRINTCLIENT: return paintSurface(reinterpret_cast<HDC>(wParam));
            case WM_CTLCOLORSTATIC: return colourStatic(wParam, lParam);
            default: return callOriginal(message, wParam, lParam);
        }
    }

    // For statics without an element of their own. Disabled and read-only edit boxes send the message too, but keep the
    // system's colours.
    LRESULT colourStatic(WPARAM wParam, LPARAM lParam) {
        if (!isOfClass(reinterpret_cast<HWND>(lParam), "Static")) {
            return callOriginal(WM_CTLCOLORSTATIC, wParam, lParam);
        }
        const SkinPalette& palette = engine().palette();
        const StateLook& colours = look().of(ControlState::Normal);
        if (!brush_) {
            const SkinColour back{ColourSource::Back, 0};
            brush_.reset(CreateSolidBrush(colourOf(palette.of(colours.fill ? colours.fill->top : back))));
        }
        const auto dc = reinterpret_cast<HDC>(wParam);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, colourOf(palette.of(colours.text)));
        return reinterpret_cast<LRESULT>(brush_.get());
    }

    Brush brush_;
};

// ---- Labels

// A sunken label becomes a panel, with its first line as a heading.
class SkinnedLabel final : public SkinnedWindow {
public:
    SkinnedLabel(Win32SkinEngine& engine, HWND window, std::string element)
        : SkinnedWindow(engine, window, std::move(element)), panel_(isSunken()) {
        if (panel_) {
            // The skin draws the panel's edge.
            SetWindowLongA(window, GWL_STYLE, GetWindowLongA(window, GWL_STYLE) & ~SS_SUNKEN);
            SetWindowLongA(window, GWL_EXSTYLE, GetWindowLongA(window, GWL_EXSTYLE) & ~WS_EX_STATICEDGE);
            SetWindowPos(window, nullptr, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
            SetPropA(window, kPanel, reinterpret_cast<HANDLE>(1));
        }
    }

private:
    static constexpr char kPanel[] = "Korvane.Panel";

    // The property is for a label that is skinned again: it has lost the style by then.
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
        const ControlState state = IsWindowEnabled(window()) ? ControlState::Normal : ControlState::Disabled;
        const SkinPalette& palette = engine().palette();
        RECT area{0, 0, buffer.width(), buffer.height()};
        if (panel_) {
            Canvas canvas = canvasOn(buffer);
            ElementPainter(canvas, palette).background({0, 0, buffer.width(), buffer.height()}, look(), state);
            area.left += palette.pixels(look().margins.left);
            area.top += palette.pixels(look().margins.top);
            area.right -= palette.pixels(look().margins.right);
            area.bottom -= palette.pixels(look().margins.bottom);
        }
        SetBkMode(buffer.dc(), TRANSPARENT);
        SetTextColor(buffer.dc(), textColour(state));
        const std::string text = windowText(window());
        const std::size_t line = panel_ ? text.find('\n') : std::string::npos;
        if (line != std::string::npos) {
            area.top += drawText(buffer.dc(), text.substr(0, line), area, font(true));
            drawText(buffer.dc(), text.substr(line + 1), area, font());
        } else {
            drawText(buffer.dc(), text, area, font());
        }
    }

    COLORREF textColour(ControlState state) const {
        const SkinPalette& palette = engine().palette();
        const SkinColour panelText{ColourSource::PanelText, 0};
        return colourOf(palette.of(panel_ && state == ControlState::Normal ? panelText : look().of(state).text));
    }

    // Returns the height of the text.
    int drawText(HDC dc, const std::string& part, RECT area, HFONT partFont) const {
        const LONG style = GetWindowLongA(window(), GWL_STYLE);
        const UINT format = DT_LEFT | DT_WORDBREAK | DT_EXPANDTABS | (style & SS_NOPREFIX ? DT_NOPREFIX : 0u);
        const SelectedObject selected(dc, partFont);
        return DrawTextA(dc, part.c_str(), -1, &area, format);
    }

    bool panel_;
};

// ---- The splitter

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
        Canvas canvas = canvasOn(buffer);
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

}  // namespace korvane::skin
