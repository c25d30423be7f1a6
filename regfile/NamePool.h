// The names of very many keys, packed: one byte for each character as long as a name has none beyond U+00FF.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

class NamePool {
public:
    struct Name {
        std::uint32_t at = 0;
        std::uint8_t length = 0;
        bool wide = false;
    };

    // At most 255 characters.
    Name add(std::u16string_view text);

    char16_t character(Name name, std::size_t index) const {
        const unsigned char* bytes = &blocks_[name.at / kBlockSize][name.at % kBlockSize];
        return name.wide ? static_cast<char16_t>(bytes[2 * index] | bytes[2 * index + 1] << 8)
                         : static_cast<char16_t>(bytes[index]);
    }
    std::u16string text(Name name) const;
    bool equalsIgnoringCase(Name name, std::u16string_view text) const;
    bool lessIgnoringCase(Name a, Name b) const;

private:
    static constexpr std::size_t kBlockSize = 1 << 16;

    std::vector<std::unique_ptr<unsigned char[]>> blocks_;
    std::size_t used_ = kBlockSize;  // of the last block
};

}  // namespace korvane
