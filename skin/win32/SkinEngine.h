// The skin engine behind control 1057: reads a skin and paints the windows that the program names with it.
#pragma once

#include "platform/SkinEngine.h"
#include "platform/win32/PaintBuffer.h"
#include "skin/ElementPainter.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include <windows.h>

namespace korvane::skin {

class SkinnedWindow;

// The user's settings of Windows that the skin follows.
struct SystemSettings {
    bool highContrast = false;
    SystemColours colours;
    int dpi = 96;
};
SystemSettings readSystemSettings();

class Win32SkinEngine final : public ISkinEngine {
public:
    // Called with the name of a pressed frame button, other than minimize and close.
    using FrameButtonHandler = std::function<void(const std::string& name)>;

    Win32SkinEngine();
    Win32SkinEngine(const Win32SkinEngine&) = delete;
    Win32SkinEngine& operator=(const Win32SkinEngine&) = delete;
    ~Win32SkinEngine() override;

    // Before the first element is applied.
    void setProperties(const SkinProperties& properties) { properties_ = properties; }
    void setFrameButtonHandler(FrameButtonHandler handler) { frameButtonHandler_ = std::move(handler); }

    // The dialogs have to be Win32Dialogs. Fails for a file that cannot be read or is no skin, an element that the skin
    // lacks or describes wrongly, and a window that does not exist.
    Hresult LoadSkin(const std::string& path) override;
    Hresult ApplySkin(DialogControls& mainWindow) override;
    Hresult ApplySkinElement(DialogControls& dialog, int controlId, std::string_view element) override;

    // Paints a window that has taken the place of another as that one was painted.
    void replaceWindow(HWND old, HWND window);
    // Repaints everything with these settings; to begin with, those of the system are used.
    void useSettings(const SystemSettings& settings);

    // ---- For the windows being painted

    // Of an element that has been applied; in the system's colours under high contrast.
    const ElementLook& look(std::string_view element) const;
    // The look of "FrameButton", or of "Button" in a skin without it.
    const ElementLook& frameButtonLook() const;
    const SkinPalette& palette() const { return palette_; }
    bool skinsClientArea() const { return properties_.skinClientArea; }
    // The font that an element names, or else the given one, in bold if asked for. Owned by the engine unless it is the
    // given one.
    HFONT font(const SkinFont& named, HFONT otherwise, bool bold = false);
    // Draws the skin's surface, which lies behind everything, over the whole buffer of the window's client area.
    void drawSurface(HWND window, PaintBuffer& buffer) const;
    void pressFrameButton(const std::string& name);
    void forget(HWND window);

private:
    Hresult apply(HWND window, std::string_view element);
    bool prepare(std::string_view element);
    void makeColours();

    SkinFile skin_;
    SkinProperties properties_;
    SkinPalette palette_;
    SystemSettings settings_;
    std::map<std::string, ElementLook, std::less<>> looks_;  // as they are painted, by element
    std::map<std::string, Font> fonts_;                      // by the bytes of their LOGFONT
    std::map<HWND, std::unique_ptr<SkinnedWindow>> windows_;
    FrameButtonHandler frameButtonHandler_;
};

// The window class "Korvane.SkinEngine" of control 1057, which holds an engine and shows nothing.
void registerSkinEngineClass(HINSTANCE instance);
// The engine of such a control, which lives as long as the control does; null for any other window.
Win32SkinEngine* skinEngineOf(HWND control);

}  // namespace korvane::skin
