// The skin engine behind control 1057: it reads a skin and paints with it the
// windows that the program names.
#pragma once

#include "platform/SkinEngine.h"
#include "skin/ElementPainter.h"
#include "skin/win32/PaintBuffer.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include <windows.h>

namespace korvane {

class SkinnedWindow;

// What the user has set for all programs.
struct SystemSettings {
    bool highContrast = false;
    SystemColours colours;
    int dpi = 96;
};
SystemSettings readSystemSettings();

class Win32SkinEngine final : public ISkinEngine {
public:
    // Called with the name of a button of the frame that was pressed, other than minimize and close.
    using FrameButtonHandler = std::function<void(const std::string& name)>;

    Win32SkinEngine();
    Win32SkinEngine(const Win32SkinEngine&) = delete;
    Win32SkinEngine& operator=(const Win32SkinEngine&) = delete;
    ~Win32SkinEngine() override;

    // For use before the first element is applied.
    void setProperties(const SkinProperties& properties) { properties_ = properties; }
    void setFrameButtonHandler(FrameButtonHandler handler) { frameButtonHandler_ = std::move(handler); }

    // The dialogs have to be real ones (Win32Dialog). Refused are a file that cannot be read or is no skin, an element
    // that the skin lacks or describes wrongly, and a window that is not there.
    Hresult LoadSkin(const std::string& path) override;
    Hresult ApplySkin(DialogControls& mainWindow) override;
    Hresult ApplySkinElement(DialogControls& dialog, int controlId, std::string_view element) override;

    // A window that has taken the place of another is painted as that one would be.
    void replaceWindow(HWND old, HWND window);
    // From now on everything is painted according to these settings; at first they are those that the system has.
    void useSettings(const SystemSettings& settings);

    // ---- For the windows that are painted

    // Of an element that has been applied; in the system's colours while the user wants high contrast.
    const ElementLook& look(std::string_view element) const;
    // "FrameButton", or that of "Button" in a skin without it.
    const ElementLook& frameButtonLook() const;
    const SkinPalette& palette() const { return palette_; }
    bool skinsClientArea() const { return properties_.skinClientArea; }
    // The font that an element names, or else the given one; with the second, its bold variant. The font is the
    // engine's.
    HFONT font(const SkinFont& named, HFONT otherwise, bool bold = false);
    // Draws what a window shows where it has nothing of its own.
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
    std::map<std::string, HFONT> fonts_;                     // by what they were made from
    std::map<HWND, std::unique_ptr<SkinnedWindow>> windows_;
    FrameButtonHandler frameButtonHandler_;
};

// The window class "Korvane.SkinEngine" of control 1057, which holds an engine and shows nothing.
void registerSkinEngineClass(HINSTANCE instance);
// The engine of such a control, which lives as long as the control does; null when the window is none.
Win32SkinEngine* skinEngineOf(HWND control);
// Hands the control its initialisation data (SkinProperties.h).
void initialiseSkinEngine(HWND control, std::span<const std::byte> data);

}  // namespace korvane
