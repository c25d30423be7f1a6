// The design-time properties of the skin engine, from the RT_DLGINIT resource of the main dialog.
#pragma once

#include "skin/Picture.h"

#include <cstddef>
#include <span>

namespace korvane::skin {

struct SkinProperties {
    int hue = 0;  // any number of degrees by which every colour of the skin is turned
    Pixel back = 0xFFFFFFFF;
    Pixel fore = 0xFF000000;
    Pixel panel = 0xFFECE9D8;
    Pixel panelText = 0xFF000000;
    bool applyColours = true;     // false: the skin's own values of the four colours apply
    bool skinClientArea = true;   // false: only the frame is skinned
    bool operator==(const SkinProperties&) const = default;
};

// Reads the persisted form, little-endian: two groups, each a 32-bit count of entries and then the entries; an entry is
// the property's name in UTF-16 with a terminating zero, a 32-bit type code (4 text, 6 16-bit boolean, 7 three-byte
// colour in the order blue, green, red, 8 32-bit integer), a 32-bit size in bytes, and the value. Unknown properties are
// skipped. Malformed data (truncated, a wrong size or type, too many entries) yields the defaults.
SkinProperties readSkinProperties(std::span<const std::byte> data);

// The bytes of the control's first record in a dialog's initialisation data; empty when there is none or the data is
// malformed before it. A record is the control's id and a message (16 bits each), a 32-bit size and that many bytes; a zero
// id ends the data.
std::span<const std::byte> controlData(std::span<const std::byte> dialogData, int controlId);

}  // namespace korvane::skin
