// Packing and comparing names. Nearly all of them are plain ASCII, so that is compared first.
#include "regfile/NamePool.h"

#include <algorithm>

#include "text/CaseFolding.h"

namespace korvane {

NamePool::Name NamePool::add(std::u16string_view text) {
    const bool wide = std::any_of(text.begin(), text.end(), [](char16_t c) { return c > 0xFF; });
    const std::size_t size = text.size() * (wide ? 2 : 1);
    if (used_ + size > kBlockSize || blocks_.empty()) {
        blocks_.push_back(std::make_unique<unsigned char[]>(kBlockSize));
        used_ = 0;
    }
    // A name of no length must not point behind its block either.
    const std::size_t at = std::min(used_, kBlockSize - 1);
    unsigned char* to = &blocks_.back()[at];
    for (const char16_t c : text) {
        *to++ = static_cast<unsigned char>(c & 0xFF);
        if (wide) {
            *to++ = static_cast<unsigned char>(c >> 8);
        }
    }
    used_ += size;
    return {static_cast<std::uint32_t>((blocks_.size() - 1) * kBlockSize + at),
            static_cast<std::uint8_t>(text.size()), wide};
}

std::u16string NamePool::text(Name name) const {
    std::u16string text(name.length, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = character(name, i);
    }
    return text;
}

bool NamePool::equalsIgnoringCase(Name name, std::u16string_view text) const {
    if (name.length != text.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = character(name, i);
        if (c != text[i] && upperCase(c) != upperCase(text[i])) {
            return false;
        }
    }
    return true;
}

bool NamePool::lessIgnoringCase(Name a, Name b) const {
    const std::size_t common = std::min(a.length, b.length);
    for (std::size_t i = 0; i < common; ++i) {
        const char16_t left = upperCase(character(a, i));
        const char16_t right = upperCase(character(b, i));
        if (left != right) {
            return left < right;
        }
    }
    return a.length < b.length;
}

}  // namespace korvane
