// The persisted properties of the skin engine and the dialog's data around them.
#include "skin/SkinProperties.h"

#include "tests/skin/BitmapBytes.h"

#include <gtest/gtest.h>

namespace korvane::skin {
namespace {

std::string counted(std::size_t size) { return littleEndian(static_cast<std::uint32_t>(size), 4); }

std::string entry(std::string_view name, std::uint32_t type, const std::string& value) {
    std::string bytes;
    for (const char c : name) {
        bytes += littleEndian(static_cast<unsigned char>(c), 2);
    }
    return bytes + littleEndian(0, 2) + littleEndian(type, 4) + counted(value.size()) + value;
}

std::string groups(const std::vector<std::string>& first, const std::vector<std::string>& second) {
    std::string bytes;
    for (const auto& group : {first, second}) {
        bytes += counted(group.size());
        for (const std::string& each : group) {
            bytes += each;
        }
    }
    return bytes;
}

SkinProperties readFrom(const std::string& bytes) {
    const std::vector<char> exact(bytes.begin(), bytes.end());
    return readSkinProperties(std::as_bytes(std::span(exact)));
}

TEST(SkinProperties, AreReadWholeOrNotAtAll) {
    const std::string whole = groups({entry("m_bstrAuthor", 4, std::string("A\0\0\0", 4)),
                                      entry("m_nHue", 8, littleEndian(static_cast<std::uint32_t>(-120), 4)),
                                      entry("m_BackColor", 7, "\x10\x20\x30"), entry("m_ForeColor", 7, "\x01\x02\x03"),
                                      entry("m_PanelColor", 7, "\xD8\xE9\xEC"),
                                      entry("m_PanelTextColor", 7, std::string("\0\0\xFF", 3)),
                                      entry("m_bApplyColors", 6, std::string("\0\0", 2)),
                                      entry("m_bSkinClientArea", 6, std::string("\0\0", 2))},
                                     {entry("m_bstrName", 4, "")});
    EXPECT_EQ(readFrom(whole), (SkinProperties{.hue = -120,
                                               .back = 0xFF302010,
                                               .fore = 0xFF030201,
                                               .panel = 0xFFECE9D8,
                                               .panelText = 0xFFFF0000,
                                               .applyColours = false,
                                               .skinClientArea = false}));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(readFrom(whole.substr(0, size)), SkinProperties{}) << size;
    }
}

TEST(SkinProperties, OneWrongPropertyGivesTheDefaultsForAll) {
    const std::string hue = entry("m_nHue", 8, littleEndian(7, 4));
    EXPECT_EQ(readFrom(groups({hue, entry("m_Unknown", 99, "any value"), entry("M_NHUE", 4, "")}, {})).hue, 7)
        << "what is not known is passed over, and names have their capital letters";
    for (const std::string& wrong :
         {entry("m_nHue", 7, littleEndian(7, 4)), entry("m_nHue", 8, "\1\1"), entry("m_BackColor", 7, "\1\2\3\4"),
          entry("m_bApplyColors", 6, "\1"), entry("m_bApplyColors", 11, "\1\1")}) {
        EXPECT_EQ(readFrom(groups({hue, wrong}, {})), SkinProperties{});
        EXPECT_EQ(readFrom(groups({hue}, {wrong})), SkinProperties{});
    }
    std::string tooLong = groups({hue}, {});
    tooLong.replace(4 + 14 + 4, 4, littleEndian(0xFFFFFFFF, 4));
    EXPECT_EQ(readFrom(tooLong), SkinProperties{});
}

TEST(SkinProperties, ADialogsDataIsSearchedForTheControl) {
    const auto record = [](std::uint32_t id, const std::string& data) {
        return littleEndian(id, 2) + littleEndian(0x376, 2) + counted(data.size()) + data;
    };
    const std::string dialog = record(1062, "splash") + record(1057, "skin") + record(1057, "again") +
                               record(1000, "") + littleEndian(0, 2);
    const auto find = [](const std::string& bytes, int id) {
        const std::vector<char> exact(bytes.begin(), bytes.end());
        const std::span<const std::byte> found = controlData(std::as_bytes(std::span(exact)), id);
        return std::string(reinterpret_cast<const char*>(found.data()), found.size());
    };
    EXPECT_EQ(find(dialog, 1058), "");
    EXPECT_EQ(find(std::string(8, '\0') + dialog, 1057), "") << "a zero id ends the data";
    const std::size_t end = dialog.find("skin") + 4;
    for (std::size_t size = 0; size <= dialog.size(); ++size) {
        EXPECT_EQ(find(dialog.substr(0, size), 1057), size < end ? "" : "skin") << size;
    }
}

}  // namespace
}  // namespace korvane::skin
