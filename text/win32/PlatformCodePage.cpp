// The code pages of the running Windows.
#include "text/PlatformCodePage.h"

#include <windows.h>

namespace korvane {
namespace {

class WindowsCodePage final : public PlatformCodePage {
public:
    explicit WindowsCodePage(UINT number) : number_(number) {}

    bool isLeadByte(char byte) override { return IsDBCSLeadByteEx(number_, static_cast<BYTE>(byte)) != FALSE; }

    std::optional<char16_t> unitOf(std::string_view character) override {
        wchar_t units[2];
        const int size = static_cast<int>(character.size());
        const bool found = MultiByteToWideChar(number_, 0, character.data(), size, units, 2) == 1;
        return found ? std::optional(static_cast<char16_t>(units[0])) : std::nullopt;
    }

    std::string bytesOf(char16_t unit) override {
        const auto wide = static_cast<wchar_t>(unit);
        char bytes[2];
        const int size = WideCharToMultiByte(number_, 0, &wide, 1, bytes, sizeof bytes, nullptr, nullptr);
        return {bytes, static_cast<std::size_t>(size)};
    }

private:
    UINT number_;
};

}  // namespace

std::unique_ptr<PlatformCodePage> openPlatformCodePage(unsigned number) {
    auto page = std::make_unique<WindowsCodePage>(number);
    return page->unitOf("A") ? std::move(page) : nullptr;
}

unsigned hostCodePage() { return GetACP(); }

}  // namespace korvane
