// The skin engine and the splash screen as the main window and the pages use them.
// A negative result means that the engine refused.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace korvane {

class DialogControls;

using Hresult = std::int32_t;

constexpr bool failed(Hresult result) { return result < 0; }

class ISkinEngine {
public:
    virtual ~ISkinEngine() = default;
    virtual Hresult LoadSkin(const std::string& path) = 0;
    virtual Hresult ApplySkin(DialogControls& mainWindow) = 0;
    // Control id 0 names the dialog's own window.
    virtual Hresult ApplySkinElement(DialogControls& dialog, int controlId, std::string_view element) = 0;
};

class SplashWindow {
public:
    virtual ~SplashWindow() = default;
    virtual void setFile(const std::string& path) = 0;       // dispatch id 22
    virtual void setMinimumTime(std::int32_t milliseconds) = 0;  // dispatch id 19
    virtual void showSplash(bool wait) = 0;                  // dispatch id 15
    virtual void hide() = 0;  // at once; nothing when it is not shown
};

}  // namespace korvane
