// One table holds the keys of a section.
#include "skin/SkinElement.h"

#include "skin/SkinValues.h"

#include <algorithm>
#include <utility>

namespace korvane::skin {
namespace {

constexpr int kSmallestCaption = 16;
constexpr int kUsualCaption = 26;
constexpr std::string_view kStateNames[kControlStates] = {"Normal",   "Hot",     "Pressed",
                                                           "Disabled", "Focused", "Inactive"};

// Sets a value that is missing until its key has been read.
template <typename Value>
std::string takeInto(std::optional<Value>& target, std::string_view text,
                     std::string (*take)(std::string_view, Value&)) {
    Value value;
    std::string wrong = take(text, value);
    if (wrong.empty()) {
        target = std::move(value);
    }
    return wrong;
}

}  // namespace

struct SkinElement::Key {
    enum class Use { Everywhere, PerState, MainAlone };
    std::string_view name;
    Use use = Use::Everywhere;
    std::string (*take)(SkinElement& element, std::size_t state, std::string_view value);
};

const SkinElement::Key SkinElement::kKeys[] = {
    {"Fill", Key::Use::PerState,
     [](SkinElement& e, std::size_t state, std::string_view v) {
         return takeInto(e.states_[state].fill, v, takeFill);
     }},
    {"Border", Key::Use::PerState,
     [](SkinElement& e, std::size_t state, std::string_view v) {
         return takeInto(e.states_[state].border, v, takeColourOrNone);
     }},
    {"Text", Key::Use::PerState,
     [](SkinElement& e, std::size_t state, std::string_view v) {
         return takeInto(e.states_[state].text, v, takeColour);
     }},
    {"Mark", Key::Use::PerState,
     [](SkinElement& e, std::size_t state, std::string_view v) {
         return takeInto(e.states_[state].mark, v, takeColour);
     }},
    {"Font", Key::Use::Everywhere,
     [](SkinElement& e, std::size_t, std::string_view v) { return takeFont(v, e.look_.font); }},
    {"Margins", Key::Use::Everywhere,
     [](SkinElement& e, std::size_t, std::string_view v) { return takeMargins(v, e.look_.margins); }},
    {"Radius", Key::Use::Everywhere,
     [](SkinElement& e, std::size_t, std::string_view v) {
         return takeNumber(v, 0, kLargestLength, e.look_.radius);
     }},
    {"BorderWidth", Key::Use::Everywhere,
     [](SkinElement& e, std::size_t, std::string_view v) {
         return takeNumber(v, 0, kLargestLength, e.look_.borderWidth);
     }},
    {"Picture", Key::Use::Everywhere,
     [](SkinElement& e, std::size_t, std::string_view v) {
         e.pictureName_ = v;
         return std::string();
     }},
    {"PictureStates", Key::Use::Everywhere,
     [](SkinElement& e, std::size_t, std::string_view v) {
         return takeNumber(v, 1, static_cast<int>(kControlStates), e.look_.pictureStates);
     }},
    {"CaptionHeight", Key::Use::MainAlone,
     [](SkinElement& e, std::size_t, std::string_view v) {
         return takeNumber(v, kSmallestCaption, kLargestLength, e.look_.captionHeight);
     }},
    {"Buttons", Key::Use::MainAlone,
     [](SkinElement& e, std::size_t, std::string_view v) { return takeButtons(v, e.look_.buttons); }},
};

SkinElement::SkinElement(bool isMain) : isMain_(isMain) {
    static_assert(std::size(kKeys) <= kMostKeys);
    if (isMain_) {
        look_.captionHeight = kUsualCaption;
        look_.buttons = {"Help", "Minimize", "Close"};
    }
}

std::string SkinElement::take(const SkinLine& entry) {
    const std::size_t dot = entry.name.find('.');
    const std::string_view name = entry.name.substr(0, dot);
    const auto* key = std::ranges::find_if(kKeys, [&](const Key& each) { return equalIgnoringCase(each.name, name); });
    if (key == std::end(kKeys) || (key->use == Key::Use::MainAlone && !isMain_)) {
        return quotedPart(entry.name) + " is no key of this section";
    }
    std::size_t state = 0;
    if (dot != std::string_view::npos) {
        const auto* found = std::ranges::find_if(
            kStateNames, [&](std::string_view each) { return equalIgnoringCase(each, entry.name.substr(dot + 1)); });
        state = static_cast<std::size_t>(found - kStateNames);
        if (key->use != Key::Use::PerState || state == 0 || found == std::end(kStateNames)) {
            return quotedPart(entry.name) + " is no key of this section";
        }
    }
    int& line = lines_[static_cast<std::size_t>(key - kKeys)][state];
    if (line != 0) {
        return quotedPart(entry.name) + " stands in line " + std::to_string(line) + " already";
    }
    line = entry.number;
    std::string wrong = entry.value.empty() ? "the value is missing" : key->take(*this, state, entry.value);
    return wrong.empty() ? wrong : std::string(entry.name) + ": " + wrong;
}

std::string SkinElement::finish(const FindPicture& findPicture, ElementLook& look, int& line) {
    completeStates();
    std::string wrong = addPicture(findPicture, line);
    if (wrong.empty()) {
        look = std::move(look_);
    }
    return wrong;
}

int SkinElement::lineOf(std::string_view key) const {
    const auto* found = std::ranges::find(kKeys, key, &Key::name);
    return lines_[static_cast<std::size_t>(found - kKeys)][0];
}

void SkinElement::completeStates() {
    const StateKeys& normal = states_[0];
    for (std::size_t i = 0; i < kControlStates; ++i) {
        const StateKeys& given = states_[i];
        StateLook& state = look_.states[i];
        state.fill = given.fill.value_or(normal.fill.value_or(std::nullopt));
        state.border = given.border.value_or(normal.border.value_or(std::nullopt));
        state.text = given.text.value_or(normal.text.value_or(SkinColour{.source = ColourSource::Fore}));
        state.mark = given.mark.value_or(normal.mark.value_or(state.text));
    }
}

// The margins of a picture may meet, but not overlap.
std::string SkinElement::addPicture(const FindPicture& findPicture, int& line) {
    line = lineOf("Picture");
    if (line == 0) {
        line = lineOf("PictureStates");
        return line == 0 ? "" : "PictureStates needs a Picture";
    }
    if (pictureName_.empty()) {
        return {};  // the missing value has been reported
    }
    std::shared_ptr<const Picture> picture;
    if (std::string wrong = findPicture(pictureName_, picture); !wrong.empty()) {
        return "Picture: " + wrong;
    }
    const int states = look_.pictureStates;
    if (picture->height % states != 0) {
        return "Picture: its height of " + std::to_string(picture->height) + " pixels is not a multiple of its " +
               std::to_string(states) + " states";
    }
    const SkinMargins& margins = look_.margins;
    const int height = picture->height / states;
    if (margins.left + margins.right > picture->width || margins.top + margins.bottom > height) {
        line = lineOf("Margins");
        return "Margins: they are wider or higher than the picture of a state, " + std::to_string(picture->width) +
               " x " + std::to_string(height) + " pixels";
    }
    look_.picture = std::move(picture);
    return {};
}

}  // namespace korvane::skin
