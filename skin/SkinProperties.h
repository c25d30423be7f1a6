// The design-time properties of the skin engine: part of the initialisation
// data that the resource script holds for the main dialog's controls.
#pragma once

#include "skin/Picture.h"

#include <cstddef>
#include <span>

namespace korvane {

struct SkinProperties {
    int hue = 0;  // degrees by which every colour of the skin is turned, any number
    Pixel back = 0xFFFFFFFF;
    Pixel fore = 0xFF000000;
    Pixel panel = 0xFFECE9D8;
    Pixel panelText = 0xFF000000;
    bool applyColours = true;     // false: the skin's own values of the four colours hold
    bool skinClientArea = true;   // false: only the frame is skinned
    bool operator==(const SkinProperties&) const = default;
};

// Reads the persisted form, little-endian: two groups, each a 32-bit count of entries and then the entries; an entry is
// the property's name in UTF-16 with a terminating zero, a 32-bit type code (4 text, 6 16-bit boolean, 7 three-byte
// colour in the order blue, green, red, 8 32-bit integer), a 32-bit size in bytes, and the value. Properties that are
// not known are passed over. Malformed data (cut off, a wrong size or type, too many entries) gives the defaults.
SkinProperties readSkinProperties(std::span<const std::byte> data);

// A dialog's initialisation data: for each of its records the control's id and a message (16 bits each), a 32-bit size
// and that many bytes; a zero id ends it. The bytes of the control's first record; empty when there is none or the data
// is malformed before it.
std::span<const std::byte> controlData(std::span<const std::byte> dialogData, int controlId);

}  // namespace korvane
