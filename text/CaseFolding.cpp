// By rule, because the C library's own upper case depends on the locale of the machine.
#include "text/CaseFolding.h"

namespace korvane {

char16_t upperCase(char16_t c) {
    const auto in = [c](char16_t first, char16_t last) { return c >= first && c <= last; };
    const auto shifted = [c](int distance) { return static_cast<char16_t>(c + distance); };
    if (c < 0x80) {
        return in(u'a', u'z') ? shifted(-0x20) : c;
    }
    if (c < 0x100) {
        return c == 0xFF ? char16_t{0x178} : c >= 0xE0 && c != 0xF7 ? shifted(-0x20) : c;
    }
    // Latin Extended-A: pairs of which the small letter is odd, but even from 139 to 148 and from 179 on.
    if (in(0x100, 0x137) || in(0x14A, 0x177)) {
        return c % 2 == 1 && c != 0x131 ? shifted(-1) : c;
    }
    if (in(0x139, 0x148) || in(0x179, 0x17E)) {
        return c % 2 == 0 ? shifted(-1) : c;
    }
    if (c == 0x3AC) {
        return 0x386;
    }
    if (in(0x3AD, 0x3AF)) {
        return shifted(-37);
    }
    if (in(0x3B1, 0x3CB)) {
        return c == 0x3C2 ? char16_t{0x3A3} : shifted(-0x20);
    }
    if (in(0x3CC, 0x3CE)) {
        return c == 0x3CC ? char16_t{0x38C} : shifted(-63);
    }
    if (in(0x430, 0x44F) || in(0xFF41, 0xFF5A)) {
        return shifted(-0x20);
    }
    if (in(0x450, 0x45F)) {
        return shifted(-0x50);
    }
    return in(0x561, 0x586) ? shifted(-0x30) : c;
}

std::u16string upperCase(std::u16string_view text) {
    std::u16string out(text);
    std::ranges::transform(out, out.begin(), [](char16_t c) { return upperCase(c); });
    return out;
}

}  // namespace korvane
