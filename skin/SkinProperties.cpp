// Reads little-endian data that may end anywhere: once a read has failed, all further reads fail, too.
#include "skin/SkinProperties.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace korvane::skin {
namespace {

constexpr std::uint32_t kBoolean = 6;
constexpr std::uint32_t kColour = 7;
constexpr std::uint32_t kInteger = 8;
constexpr int kGroups = 2;

class DataReader {
public:
    explicit DataReader(std::span<const std::byte> data) : data_(data) {}

    bool failed() const { return failed_; }

    std::span<const std::byte> bytes(std::size_t count) {
        failed_ = failed_ || count > data_.size();
        if (failed_) {
            return {};
        }
        const std::span<const std::byte> taken = data_.first(count);
        data_ = data_.subspan(count);
        return taken;
    }

    // Of up to four bytes; 0 after a failure.
    std::uint32_t number(std::size_t size) {
        std::uint32_t value = 0;
        unsigned shift = 0;
        for (const std::byte byte : bytes(size)) {
            value |= std::to_integer<std::uint32_t>(byte) << shift;
            shift += 8;
        }
        return value;
    }

    std::u16string textToZero() {
        std::u16string text;
        for (char16_t unit = unit16(); unit != 0; unit = unit16()) {
            text.push_back(unit);
        }
        return text;
    }

private:
    char16_t unit16() { return static_cast<char16_t>(number(2)); }

    std::span<const std::byte> data_;
    bool failed_ = false;
};

std::size_t sizeOf(std::uint32_t type) { return type == kInteger ? 4 : type == kColour ? 3 : 2; }

// The member that a property sets; one of the pointers is set.
struct Target {
    std::u16string_view name;
    std::uint32_t type;
    int SkinProperties::*number = nullptr;
    Pixel SkinProperties::*colour = nullptr;
    bool SkinProperties::*flag = nullptr;
};

constexpr Target kTargets[] = {
    {.name = u"m_nHue", .type = kInteger, .number = &SkinProperties::hue},
    {.name = u"m_BackColor", .type = kColour, .colour = &SkinProperties::back},
    {.name = u"m_ForeColor", .type = kColour, .colour = &SkinProperties::fore},
    {.name = u"m_PanelColor", .type = kColour, .colour = &SkinProperties::panel},
    {.name = u"m_PanelTextColor", .type = kColour, .colour = &SkinProperties::panelText},
    {.name = u"m_bApplyColors", .type = kBoolean, .flag = &SkinProperties::applyColours},
    {.name = u"m_bSkinClientArea", .type = kBoolean, .flag = &SkinProperties::skinClientArea},
};

bool take(std::u16string_view name, std::uint32_t type, std::span<const std::byte> value, SkinProperties& properties) {
    for (const Target& target : kTargets) {
        if (target.name != name) {
            continue;
        }
        if (type != target.type || value.size() != sizeOf(type)) {
            return false;
        }
        const std::uint32_t number = DataReader(value).number(value.size());
        if (target.number != nullptr) {
            properties.*target.number = static_cast<std::int32_t>(number);
        } else if (target.colour != nullptr) {
            properties.*target.colour = 0xFF000000 | number;
        } else {
            properties.*target.flag = number != 0;
        }
    }
    return true;
}

}  // namespace

SkinProperties readSkinProperties(std::span<const std::byte> data) {
    SkinProperties properties;
    DataReader reader(data);
    for (int group = 0; group < kGroups; ++group) {
        // A count that is too high ends at the end of the data.
        const std::uint32_t count = reader.number(4);
        for (std::uint32_t i = 0; i < count && !reader.failed(); ++i) {
            const std::u16string name = reader.textToZero();
            const std::uint32_t type = reader.number(4);
            const std::span<const std::byte> value = reader.bytes(reader.number(4));
            if (!reader.failed() && !take(name, type, value, properties)) {
                return {};
            }
        }
    }
    return reader.failed() ? SkinProperties{} : properties;
}

std::span<const std::byte> controlData(std::span<const std::byte> dialogData, int controlId) {
    DataReader reader(dialogData);
    while (true) {
        const std::uint32_t id = reader.number(2);
        reader.number(2);  // the message
        const std::span<const std::byte> data = reader.bytes(reader.number(4));
        if (reader.failed() || id == 0) {
            return {};
        }
        if (static_cast<int>(id) == controlId) {
            return data;
        }
    }
}

}  // namespace korvane::skin
