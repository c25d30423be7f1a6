// Turns one element's section of a skin file into an ElementLook.
#pragma once

#include "skin/SkinFile.h"
#include "skin/SkinText.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace korvane::skin {

// Reads a picture, or returns why it cannot.
using FindPicture = std::function<std::string(std::string_view name, std::shared_ptr<const Picture>& picture)>;

class SkinElement {
public:
    explicit SkinElement(bool isMain);

    // Takes one entry of the section. Returns why it cannot, or an empty text.
    std::string take(const SkinLine& entry);

    // At the end of the section: checks the keys against each other. Returns what is wrong, with its line, or an empty
    // text with the look.
    std::string finish(const FindPicture& findPicture, ElementLook& look, int& line);

private:
    // What the section says of one state; the inner optional of fill and border is empty for "none".
    struct StateKeys {
        std::optional<std::optional<SkinFill>> fill;
        std::optional<std::optional<SkinColour>> border;
        std::optional<SkinColour> text;
        std::optional<SkinColour> mark;
    };
    struct Key;
    static const Key kKeys[];
    static constexpr std::size_t kMostKeys = 16;

    int lineOf(std::string_view key) const;
    void completeStates();
    std::string addPicture(const FindPicture& findPicture, int& line);

    bool isMain_;
    ElementLook look_;
    std::array<StateKeys, kControlStates> states_;
    std::string pictureName_;
    // The line of each key and state, 0 when it is missing.
    std::array<std::array<int, kControlStates>, kMostKeys> lines_{};
};

}  // namespace korvane::skin
