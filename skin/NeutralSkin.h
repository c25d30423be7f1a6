// A skin engine and a splash that do nothing and succeed: the program then
// looks as the system draws it.
#pragma once

#include "platform/SkinEngine.h"

namespace korvane {

class NeutralSkinEngine final : public ISkinEngine {
public:
    Hresult LoadSkin(const std::string&) override { return 0; }
    Hresult ApplySkin(DialogControls&) override { return 0; }
    Hresult ApplySkinElement(DialogControls&, int, std::string_view) override { return 0; }
};

class NeutralSplash final : public SplashWindow {
public:
    void setFile(const std::string&) override {}
    void setMinimumTime(std::int32_t) override {}
    void showSplash(bool) override {}
};

}  // namespace korvane
