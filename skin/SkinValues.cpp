// Strict: a value that is not understood as a whole is a mistake, so that a typing error is never taken for something
// else.
#include "skin/SkinValues.h"

#include "skin/SkinText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace korvane::skin {
namespace {

constexpr std::string_view kColourNames[] = {"", "Back", "Fore", "Panel", "PanelText"};
constexpr std::string_view kButtonNames[] = {"Help", "Minimize", "Close"};
constexpr int kSmallestPoints = 4;
constexpr int kLargestPoints = 72;
constexpr std::size_t kLongestFace = 31;  // bytes: Windows has no room for more

template <typename Number>
std::optional<Number> wholeNumber(std::string_view text, int base) {
    Number number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number, base);
    const bool whole = error == std::errc() && stopped == end && !text.starts_with('-');
    return whole ? std::optional(number) : std::nullopt;
}

// The parts between commas; if there are more than `most`, only the first `most` + 1.
std::vector<std::string_view> partsOf(std::string_view value, std::size_t most) {
    std::vector<std::string_view> parts;
    for (std::size_t start = 0; start <= value.size() && parts.size() <= most;) {
        const std::size_t end = std::min(value.find(',', start), value.size());
        parts.push_back(trimmed(value.substr(start, end - start)));
        start = end + 1;
    }
    return parts;
}

std::optional<Pixel> ownColour(std::string_view value) {
    constexpr std::size_t kDigits = 6;
    if (!value.starts_with('#') || value.size() != 1 + kDigits) {
        return std::nullopt;
    }
    const std::optional<std::uint32_t> number = wholeNumber<std::uint32_t>(value.substr(1), 16);
    return number ? std::optional<Pixel>(0xFF000000 | *number) : std::nullopt;
}

std::string noNumber(std::string_view value, int lowest, int highest) {
    return quotedPart(value) + " is no number from " + std::to_string(lowest) + " to " + std::to_string(highest);
}

bool isNone(std::string_view value) { return equalIgnoringCase(value, "none"); }

}  // namespace

std::string_view colourName(ColourSource source) { return kColourNames[static_cast<std::size_t>(source)]; }

std::string takeOwnColour(std::string_view value, Pixel& target) {
    const std::optional<Pixel> colour = ownColour(value);
    target = colour.value_or(target);
    return colour ? "" : quotedPart(value) + " is no colour of the form #RRGGBB";
}

std::string takeColour(std::string_view value, SkinColour& target) {
    if (const std::optional<Pixel> own = ownColour(value)) {
        target = {ColourSource::Own, *own};
        return {};
    }
    const auto* name =
        std::ranges::find_if(kColourNames, [&](std::string_view each) { return equalIgnoringCase(each, value); });
    if (value.empty() || name == std::end(kColourNames)) {
        return quotedPart(value) + " is no colour: #RRGGBB, Back, Fore, Panel or PanelText";
    }
    target = {.source = static_cast<ColourSource>(name - kColourNames)};
    return {};
}

std::string takeColourOrNone(std::string_view value, std::optional<SkinColour>& target) {
    if (isNone(value)) {
        target.reset();
        return {};
    }
    SkinColour colour;
    std::string wrong = takeColour(value, colour);
    if (wrong.empty()) {
        target = colour;
    }
    return wrong;
}

std::string takeFill(std::string_view value, std::optional<SkinFill>& target) {
    if (isNone(value)) {
        target.reset();
        return {};
    }
    const std::vector<std::string_view> parts = partsOf(value, 2);
    if (parts.size() > 2) {
        return quotedPart(value) + " is more than two colours";
    }
    SkinFill fill;
    std::string wrong = takeColour(parts.front(), fill.top);
    if (wrong.empty()) {
        wrong = takeColour(parts.back(), fill.bottom);
    }
    if (wrong.empty()) {
        target = fill;
    }
    return wrong;
}

std::string takeNumber(std::string_view value, int lowest, int highest, int& target) {
    const std::optional<int> number = wholeNumber<int>(value, 10);
    if (!number || *number < lowest || *number > highest) {
        return noNumber(value, lowest, highest);
    }
    target = *number;
    return {};
}

std::string takeMargins(std::string_view value, SkinMargins& target) {
    std::array<int, 4> margins{};
    const std::vector<std::string_view> parts = partsOf(value, margins.size());
    if (parts.size() != margins.size()) {
        return quotedPart(value) + " is not four numbers: left, top, right, bottom";
    }
    for (std::size_t i = 0; i < margins.size(); ++i) {
        if (std::string wrong = takeNumber(parts[i], 0, kLargestLength, margins[i]); !wrong.empty()) {
            return wrong;
        }
    }
    target = {margins[0], margins[1], margins[2], margins[3]};
    return {};
}

std::string takeFont(std::string_view value, SkinFont& target) {
    const std::vector<std::string_view> parts = partsOf(value, 3);
    const bool bold = parts.size() == 3;
    if (parts.size() < 2 || parts.size() > 3 || parts[0].empty() || (bold && !equalIgnoringCase(parts[2], "bold"))) {
        return quotedPart(value) + " is no font: its name, its size in points, and perhaps the word bold";
    }
    if (parts[0].size() > kLongestFace) {
        return quotedPart(parts[0]) + " is longer than the name of a font can be";
    }
    int points = 0;
    std::string wrong = takeNumber(parts[1], kSmallestPoints, kLargestPoints, points);
    if (wrong.empty()) {
        target = {std::string(parts[0]), points, bold};
    }
    return wrong;
}

std::string takeButtons(std::string_view value, std::vector<std::string>& target) {
    std::vector<std::string> buttons;
    const std::vector<std::string_view> parts =
        isNone(value) ? std::vector<std::string_view>() : partsOf(value, std::size(kButtonNames));
    for (const std::string_view part : parts) {
        const auto* name =
            std::ranges::find_if(kButtonNames, [&](std::string_view each) { return equalIgnoringCase(each, part); });
        if (name == std::end(kButtonNames)) {
            return quotedPart(part) + " is no button: Help, Minimize or Close";
        }
        if (std::ranges::find(buttons, *name) != buttons.end()) {
            return "the button " + std::string(*name) + " is named twice";
        }
        buttons.emplace_back(*name);
    }
    target = buttons;
    return {};
}

}  // namespace korvane::skin
