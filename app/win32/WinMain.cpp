// Korvane Manager: connects the running Windows, the main window and its decisions.
#include "app/KorvaneApp.h"
#include "app/MainDlg.h"
#include "app/win32/Win32MainWindow.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32System.h"

#include <array>
#include <string>

#include <windows.h>
#include <ole2.h>

namespace {

std::string executablePath() {
    std::array<char, MAX_PATH> path{};
    const DWORD length = GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return {path.data(), length};
}

// For the folder browser and the pictures.
class Ole {
public:
    Ole() : result_(OleInitialize(nullptr)) {}
    Ole(const Ole&) = delete;
    Ole& operator=(const Ole&) = delete;
    ~Ole() {
        if (SUCCEEDED(result_)) {
            OleUninitialize();
        }
    }

private:
    HRESULT result_;
};

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    const Ole ole;
    korvane::Win32Registry registry;
    korvane::Win32System system;
    korvane::Platform platform = system.platform(registry);
    korvane::CKorvaneApp app(platform, executablePath());
    korvane::Win32MainWindow window(instance, system);
    korvane::CMainDlg dialog(app, window);
    window.runModal(dialog);
    return 0;
}
