// One element's section of a skin file on its way to an ElementLook.
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

namespace korvane {

// Reads a picture, or says why it cannot.
using FindPicture = std::function<std::string(std::string_view name, std::shared_ptr<const Picture>& picture)>;

class SkinElement {
public:
    explicit SkinElement(bool isMain);

    // Takes one entry of the section. Answers why it cannot, or an empty text.
    std::string take(const SkinLine& entry);

    // When the section has been read: what needs all of its keys. Answers what is wrong, or an empty text and the look;
    // `line` is the line concerned.
    std::string finish(const FindPicture& findPicture, ElementLook& look, int& line);

private:
    // What a section says of a state; what it does not say is empty.
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
    // By key and state: the line where it stands, 0 when it does not.
    std::array<std::array<int, kControlStates>, kMostKeys> lines_{};
};

}  // namespace korvane
