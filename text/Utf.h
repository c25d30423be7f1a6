// UTF-16, in which the registry stores names and texts, against UTF-8 and against stored bytes.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// Nothing when the bytes are not UTF-8; `faultAt` is then set to the offset of the first byte that is wrong.
std::optional<std::u16string> fromUtf8(std::string_view text, std::size_t* faultAt = nullptr);
// A half of a surrogate pair standing alone is written like any character, in three bytes: not UTF-8, but distinct.
std::string toUtf8(std::u16string_view text);
// The one or two units of the character that begins at an offset inside the text.
std::u16string_view characterAt(std::u16string_view text, std::size_t at);
// True when every surrogate has its other half, so that the text can be written in UTF-8.
bool isWellFormed(std::u16string_view text);

// Text as the registry stores it: UTF-16, low byte first. An odd last byte is no character.
std::vector<std::byte> toStored(std::u16string_view text);
std::u16string fromStored(std::span<const std::byte> data);

}  // namespace korvane
