// The colour list: the show and the apply of each kind side by side.
#include "pages/ColourCombo.h"
#include "pages/PageContext.h"

#include <array>

namespace korvane {
namespace {

unsigned part(std::string_view text) { return static_cast<unsigned>(decimalNumber(text)) % 256; }

void show(PageContext&, int, const Unbound&) {}
void apply(PageContext&, int, const Unbound&, WriteRound) {}

void show(PageContext& context, int combo, const ColourText& binding) {
    if (const auto value = context.read(binding.key, binding.name)) {
        CColourCombo(context.page, combo).SelectColour(parseColour(value->text()));
    }
}

void apply(PageContext& context, int combo, const ColourText& binding, WriteRound round) {
    if (const OpenedKey key = context.openForWriting(binding.key.writtenIn(round))) {
        const Colour colour = CColourCombo(context.page, combo).GetSelectedColour();
        writeText(context.platform.registry, key, binding.name, formatColour(colour));
    }
}

void show(PageContext& context, int combo, const ColourBinary& binding) {
    if (const auto value = context.read(binding.key, binding.name)) {
        CColourCombo(context.page, combo).SelectColour(value->number() & 0xFFFFFF);
    }
}

void apply(PageContext& context, int combo, const ColourBinary& binding, WriteRound round) {
    if (const OpenedKey key = context.openForWriting(binding.key.writtenIn(round))) {
        const Colour colour = CColourCombo(context.page, combo).GetSelectedColour();
        const std::array<std::byte, 4> data = {static_cast<std::byte>(colour), static_cast<std::byte>(colour >> 8),
                                               static_cast<std::byte>(colour >> 16), std::byte{0}};
        writeBinary(context.platform.registry, key, binding.name, data);
    }
}

}  // namespace

Colour parseColour(std::string_view text) {
    const std::size_t first = text.find(' ');
    const std::string_view rest = first == std::string_view::npos ? std::string_view() : text.substr(first + 1);
    const std::size_t second = rest.find(' ');
    const std::string_view last = second == std::string_view::npos ? std::string_view() : rest.substr(second + 1);
    return rgb(part(text.substr(0, first)), part(rest.substr(0, second)), part(last));
}

std::string formatColour(Colour colour) {
    return std::to_string(colour & 0xFF) + " " + std::to_string(colour >> 8 & 0xFF) + " " +
           std::to_string(colour >> 16 & 0xFF);
}

void showColour(PageContext& context, int combo, const ColourBinding& binding) {
    std::visit([&](const auto& kind) { show(context, combo, kind); }, binding);
}

void applyColour(PageContext& context, int combo, const ColourBinding& binding, WriteRound round) {
    std::visit([&](const auto& kind) { apply(context, combo, kind, round); }, binding);
}

}  // namespace korvane
