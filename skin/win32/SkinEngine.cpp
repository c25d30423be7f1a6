// Reads the skin, and keeps which window is painted as which element.
#include "skin/win32/SkinEngine.h"

#include "platform/win32/Win32Dialog.h"
#include "platform/win32/WindowFunctions.h"
#include "skin/SkinFolder.h"
#include "skin/win32/GdiCanvas.h"
#include "skin/win32/SkinnedWindow.h"
#include "text/CaseFolding.h"

namespace korvane::skin {
namespace {

constexpr Hresult kDone = 0;
constexpr Hresult kFailed = static_cast<Hresult>(0x80004005);    // E_FAIL
constexpr Hresult kNotFound = static_cast<Hresult>(0x80070002);  // the file is missing
constexpr Hresult kNoWindow = static_cast<Hresult>(0x80070006);  // E_HANDLE
constexpr Hresult kUnknown = static_cast<Hresult>(0x80070057);   // E_INVALIDARG

Pixel systemColour(int index) { return pixelOf(GetSysColor(index)); }

HWND windowOf(DialogControls& dialog, int controlId) {
    const HWND window = static_cast<Win32Dialog&>(dialog).window();
    return controlId == 0 ? window : GetDlgItem(window, controlId);
}

constexpr char kFrameButton[] = "FrameButton";

}  // namespace

SystemSettings readSystemSettings() {
    return {.highContrast = isHighContrastOn(),
            .colours = {.window = systemColour(COLOR_WINDOW),
                        .windowText = systemColour(COLOR_WINDOWTEXT),
                        .windowFrame = systemColour(COLOR_WINDOWFRAME),
                        .buttonFace = systemColour(COLOR_BTNFACE),
                        .buttonText = systemColour(COLOR_BTNTEXT),
                        .grayText = systemColour(COLOR_GRAYTEXT),
                        .highlight = systemColour(COLOR_HIGHLIGHT),
                        .highlightText = systemColour(COLOR_HIGHLIGHTTEXT),
                        .activeCaption = systemColour(COLOR_ACTIVECAPTION),
                        .captionText = systemColour(COLOR_CAPTIONTEXT),
                        .inactiveCaption = systemColour(COLOR_INACTIVECAPTION),
                        .inactiveCaptionText = systemColour(COLOR_INACTIVECAPTIONTEXT)},
            .dpi = static_cast<int>(screenDpi().cy)};
}

Win32SkinEngine::Win32SkinEngine() : settings_(readSystemSettings()) {}

Win32SkinEngine::~Win32SkinEngine() = default;

// ---- Calls of the program

Hresult Win32SkinEngine::LoadSkin(const std::string& path) {
    const SkinFolder folder(path);
    const auto text = folder.read(folder.fileName());
    if (!text) {
        return kNotFound;
    }
    SkinProblem problem;
    const bool loaded = skin_.load(folder.fileName(), *text, folder.reader(), problem);
    looks_.clear();
    makeColours();
    return loaded ? kDone : kFailed;
}

Hresult Win32SkinEngine::ApplySkin(DialogControls& mainWindow) { return ApplySkinElement(mainWindow, 0, "Main"); }

Hresult Win32SkinEngine::ApplySkinElement(DialogControls& dialog, int controlId, std::string_view element) {
    return apply(windowOf(dialog, controlId), element);
}

Hresult Win32SkinEngine::apply(HWND window, std::string_view element) {
    if (window == nullptr) {
        return kNoWindow;
    }
    if (!prepare(element)) {
        return kFailed;
    }
    if (!properties_.skinClientArea && !equalIgnoringCase(element, "Main")) {
        return kDone;
    }
    windows_.erase(window);
    auto skinned = makeSkinnedWindow(*this, window, std::string(element));
    if (skinned == nullptr) {
        return kUnknown;
    }
    windows_.emplace(window, std::move(skinned));
    return kDone;
}

// Finds the look of an element. "Main" also needs those of the frame's buttons and of the client area, which a skin may
// lack.
bool Win32SkinEngine::prepare(std::string_view element) {
    SkinProblem problem;
    const ElementLook* look = skin_.element(element, problem);
    if (look == nullptr) {
        return false;
    }
    looks_.insert_or_assign(std::string(element),
                            settings_.highContrast ? highContrastLook(element, *look, settings_.colours) : *look);
    if (equalIgnoringCase(element, "Main")) {
        for (const char* part : {kFrameButton, "Button", "SubMain"}) {
            if (looks_.find(part) == looks_.end()) {
                prepare(part);
            }
        }
    }
    return true;
}

void Win32SkinEngine::replaceWindow(HWND old, HWND window) {
    const auto found = windows_.find(old);
    if (found != windows_.end()) {
        apply(window, found->second->element());
    }
}

void Win32SkinEngine::makeColours() {
    palette_ = makePalette(skin_, properties_, settings_.dpi);
    if (settings_.highContrast) {
        const SystemColours& colours = settings_.colours;
        palette_.hue = 0;
        palette_.colours = {0, colours.window, colours.windowText, colours.window, colours.windowText};
    }
}

void Win32SkinEngine::useSettings(const SystemSettings& settings) {
    settings_ = settings;
    makeColours();
    std::vector<std::string> elements;
    for (const auto& [element, look] : looks_) {
        elements.push_back(element);
    }
    for (const std::string& element : elements) {
        prepare(element);
    }
    for (const auto& [window, skinned] : windows_) {
        skinned->repaint();
    }
}

// ---- For the windows being painted

const ElementLook& Win32SkinEngine::look(std::string_view element) const {
    static const ElementLook kNone;
    const auto found = looks_.find(element);
    return found != looks_.end() ? found->second : kNone;
}

const ElementLook& Win32SkinEngine::frameButtonLook() const {
    return look(looks_.find(kFrameButton) != looks_.end() ? kFrameButton : "Button");
}

HFONT Win32SkinEngine::font(const SkinFont& named, HFONT otherwise, bool bold) {
    if (named.face.empty() && !named.bold && !bold) {
        return otherwise;
    }
    LOGFONTA description{};
    GetObjectA(otherwise != nullptr ? otherwise : GetStockObject(SYSTEM_FONT), sizeof description, &description);
    if (!named.face.empty()) {
        lstrcpynA(description.lfFaceName, named.face.c_str(), sizeof description.lfFaceName);
        description.lfHeight = -MulDiv(named.points, palette_.dpi, 72);
        description.lfWidth = 0;
        description.lfWeight = FW_NORMAL;
    }
    if (named.bold || bold) {
        description.lfWeight = FW_BOLD;
    }
    const std::string key(reinterpret_cast<const char*>(&description), sizeof description);
    const auto found = fonts_.find(key);
    const auto kept = found != fonts_.end() ? found : fonts_.emplace(key, CreateFontIndirectA(&description)).first;
    return kept->second.get();
}

// All windows inside a top-level window show parts of one surface, so that no edges are visible between them.
void Win32SkinEngine::drawSurface(HWND window, PaintBuffer& buffer) const {
    HWND top = window;
    while ((GetWindowLongA(top, GWL_STYLE) & WS_CHILD) && GetParent(top) != nullptr) {
        top = GetParent(top);
    }
    POINT place{};
    MapWindowPoints(window, top, &place, 1);
    const SIZE whole = clientSize(top);
    Canvas canvas = canvasOn(buffer);
    ElementPainter(canvas, palette_)
        .surface({0, 0, canvas.width(), canvas.height()},
                 {-place.x, -place.y, whole.cx - place.x, whole.cy - place.y}, look("SubMain"),
                 ControlState::Normal);
}

void Win32SkinEngine::pressFrameButton(const std::string& name) {
    if (frameButtonHandler_) {
        frameButtonHandler_(name);
    }
}

void Win32SkinEngine::forget(HWND window) { windows_.erase(window); }

// ---- The control

namespace {

LRESULT CALLBACK engineProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE:
            SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(new Win32SkinEngine));
            return TRUE;
        case WM_NCDESTROY:
            delete reinterpret_cast<Win32SkinEngine*>(SetWindowLongPtrA(window, GWLP_USERDATA, 0));
            return 0;
        case WM_NCHITTEST: return HTTRANSPARENT;
        default: return DefWindowProcA(window, message, wParam, lParam);
    }
}

constexpr char kEngineClass[] = "Korvane.SkinEngine";

}  // namespace

void registerSkinEngineClass(HINSTANCE instance) {
    WNDCLASSA windowClass{};
    windowClass.lpfnWndProc = engineProc;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = kEngineClass;
    RegisterClassA(&windowClass);
}

Win32SkinEngine* skinEngineOf(HWND control) {
    return isOfClass(control, kEngineClass)
               ? reinterpret_cast<Win32SkinEngine*>(GetWindowLongPtrA(control, GWLP_USERDATA))
               : nullptr;
}

}  // namespace korvane::skin
