// Elsewhere than on Windows the system speaks UTF-8, and there is no live registry.
#include "cli/HostText.h"

#include "cli/SafeText.h"
#include "text/Codepage.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace korvane {

#ifdef _WIN32

namespace {

std::optional<std::u16string> fromSystemCodePage(std::string_view text) {
    if (text.empty()) {
        return std::u16string();
    }
    const int size = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    if (needed <= 0 || MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), needed) != needed) {
        return std::nullopt;
    }
    return std::u16string(wide.begin(), wide.end());
}

}  // namespace

std::string toUtf8(std::string_view text, ProgramText encoding) {
    if (encoding == ProgramText::SystemCodePage) {
        return toUtf8(fromSystemCodePage(text).value_or(fromAnsi(text)));
    }
    return toUtf8(fromAnsi(text));
}

std::string toHost(std::string_view text) { return std::string(text); }

// The code page may be one of one byte, of one or two, or UTF-8.
std::size_t firstHostCharacter(std::string_view text, char32_t& character) {
    if (GetACP() == CP_UTF8) {
        return firstUtf8Character(text, character);
    }
    const std::size_t length = IsDBCSLeadByte(static_cast<BYTE>(text.front())) != 0 && text.size() > 1 ? 2 : 1;
    wchar_t wide = 0;
    const bool known = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, text.data(), static_cast<int>(length), &wide,
                                           1) == 1;
    character = known ? wide : kNoCharacter;
    return known ? length : 1;
}

std::string fileNameToUtf8(std::string_view name) { return toUtf8(name, ProgramText::SystemCodePage); }

std::optional<std::string> fromArgument(std::string_view argument, ProgramText encoding) {
    if (encoding == ProgramText::SystemCodePage) {
        return std::string(argument);
    }
    const std::optional<std::u16string> text = fromSystemCodePage(argument);
    return text ? toAnsiExactly(*text) : std::nullopt;
}

#else

std::string toUtf8(std::string_view text, ProgramText) { return toUtf8(fromAnsi(text)); }

std::string toHost(std::string_view text) { return toUtf8(fromAnsi(text)); }

std::size_t firstHostCharacter(std::string_view text, char32_t& character) {
    return firstUtf8Character(text, character);
}

// A file's name may hold any bytes.
std::string fileNameToUtf8(std::string_view name) { return toUtf8(fromUtf8(name).value_or(fromAnsi(name))); }

std::optional<std::string> fromArgument(std::string_view argument, ProgramText) {
    const std::optional<std::u16string> text = fromUtf8(argument);
    return text ? toAnsiExactly(*text) : std::nullopt;
}

#endif

}  // namespace korvane
