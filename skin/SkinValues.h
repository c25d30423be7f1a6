// Parses the values of a skin file's keys: colours, fills, numbers, margins, fonts, buttons.
#pragma once

#include "skin/SkinFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::skin {

constexpr int kLargestLength = 200;  // pixels at 96 DPI

// Each returns what is wrong with the value, or an empty text; after a failure the target is unchanged.
std::string takeOwnColour(std::string_view value, Pixel& target);  // #RRGGBB alone
std::string takeColour(std::string_view value, SkinColour& target);
std::string takeColourOrNone(std::string_view value, std::optional<SkinColour>& target);
std::string takeFill(std::string_view value, std::optional<SkinFill>& target);
std::string takeNumber(std::string_view value, int lowest, int highest, int& target);
std::string takeMargins(std::string_view value, SkinMargins& target);
std::string takeFont(std::string_view value, SkinFont& target);
std::string takeButtons(std::string_view value, std::vector<std::string>& target);

// The key of [Colors] and the word for that colour; empty for ColourSource::Own.
std::string_view colourName(ColourSource source);

}  // namespace korvane::skin
