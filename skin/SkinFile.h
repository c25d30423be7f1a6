// The skin file (docs/SKINS.md): how each element of the windows looks. It is an INI text with pictures beside it.
#pragma once

#include "skin/Picture.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::skin {

// What is wrong with a file of a skin, and where.
struct SkinProblem {
    std::string file;  // its name without a folder
    int line = 0;      // from 1; 0: the file as a whole
    std::string reason;
};
// "skin.skn, line 12: ..." or "skin.skn: ...".
std::string describe(const SkinProblem& problem);

enum class ControlState { Normal, Hot, Pressed, Disabled, Focused, Inactive };
constexpr std::size_t kControlStates = 6;

// The program's window has four colours of its own, which a skin can refer to.
enum class ColourSource { Own, Back, Fore, Panel, PanelText };

struct SkinColour {
    ColourSource source = ColourSource::Own;
    Pixel own = 0xFF000000;  // opaque
    bool operator==(const SkinColour&) const = default;
};

// A vertical gradient; a plain colour has it twice.
struct SkinFill {
    SkinColour top;
    SkinColour bottom;
    bool operator==(const SkinFill&) const = default;
};

// What depends on the state of a control.
struct StateLook {
    std::optional<SkinFill> fill;      // none: transparent
    std::optional<SkinColour> border;  // none: no border
    SkinColour text;
    SkinColour mark;  // the check mark, or the sign on a frame button
};

struct SkinMargins {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct SkinFont {
    std::string face;  // empty: the font that the control has
    int points = 0;
    bool bold = false;
};

// One element. All lengths are pixels at 96 DPI.
struct ElementLook {
    std::array<StateLook, kControlStates> states;
    SkinFont font;
    SkinMargins margins;  // between edge and text; with a picture, its edges that are not stretched
    int radius = 0;       // of the corners
    int borderWidth = 1;
    // One picture per state, one below the other in the order of ControlState; states missing at the end look like the
    // normal one. Null: drawn with the colours alone.
    std::shared_ptr<const Picture> picture;
    int pictureStates = 1;
    int captionHeight = 0;             // "Main" alone
    std::vector<std::string> buttons;  // "Main" alone: the names of the frame's buttons, from left to right

    const StateLook& of(ControlState state) const { return states[static_cast<std::size_t>(state)]; }
};

// Reads a file beside the skin file; nullopt when it cannot be read or is longer than kLongestSkinFile.
using ReadSkinFile = std::function<std::optional<std::string>(const std::string& name)>;
constexpr std::size_t kLongestSkinFile = std::size_t{16} << 20;  // bytes, of the skin and of each picture

class SkinFile {
public:
    // Reads the text of a skin file and the pictures that it names. False with a problem when the text is not a skin at
    // all; a mistake in one element is reported only for that element.
    bool load(const std::string& name, std::string_view text, const ReadSkinFile& read, SkinProblem& problem);

    // "Main", "SubMain", "CheckBox", "Label", "Button", "Splitter" or "FrameButton", in any case. Null, with a problem,
    // when the skin lacks the element or its section has a mistake. The look is valid until the next load.
    const ElementLook* element(std::string_view name, SkinProblem& problem) const;

    // Including those that the skin lacks.
    std::size_t elementCount() const { return elements_.size(); }

    // The skin's values of the program's four colours, for when the program sets none.
    Pixel colour(ColourSource source) const { return colours_[static_cast<std::size_t>(source)]; }

    // All mistakes in the order of the file.
    std::vector<SkinProblem> problems() const { return problems_; }

private:
    class Loader;
    struct Entry {
        std::string_view name;              // one of the seven constants
        std::optional<ElementLook> look{};  // none: problem says why
        SkinProblem problem{};
    };

    std::string name_;
    std::vector<Entry> elements_;
    std::array<Pixel, 5> colours_{};
    std::vector<SkinProblem> problems_;
};

}  // namespace korvane::skin
