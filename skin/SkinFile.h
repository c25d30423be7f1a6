// The skin file (docs/SKINS.md): how each element of the windows looks. It is
// an INI text; pictures lie beside it.
#pragma once

#include "skin/Picture.h"

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

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
    std::optional<SkinFill> fill;      // none: what is behind shows through
    std::optional<SkinColour> border;  // none: no border
    SkinColour text;
    SkinColour mark;  // the check mark, or the sign on a button of the frame
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
    SkinMargins margins;  // between the edge and the text; of a picture, the edges that are not stretched
    int radius = 0;       // of the corners
    int borderWidth = 1;
    // One above the other, a picture for each state in the order of ControlState; those that are missing at the end
    // are those of the normal state. Null: drawn with the colours alone.
    std::shared_ptr<const Picture> picture;
    int pictureStates = 1;
    int captionHeight = 0;             // "Main" alone
    std::vector<std::string> buttons;  // "Main" alone: the names of the frame's buttons, from left to right

    const StateLook& of(ControlState state) const { return states[static_cast<std::size_t>(state)]; }
};

// Reads a file beside the skin file; nothing when it cannot be read or is longer than kLongestSkinFile.
using ReadSkinFile = std::function<std::optional<std::string>(const std::string& name)>;
constexpr std::size_t kLongestSkinFile = std::size_t{16} << 20;  // bytes, of the skin and of each picture

class SkinFile {
public:
    // Takes the text of a skin file and reads the pictures that it names. False with a problem when the text is not a
    // skin at all; what is wrong with one element is kept until that element is asked for.
    bool load(const std::string& name, std::string_view text, const ReadSkinFile& read, SkinProblem& problem);

    // Null, with a problem, when the skin lacks the element or something in its section is wrong. "Main", "SubMain",
    // "CheckBox", "Label", "Button", "Splitter", and "FrameButton" for the buttons of the frame. Names are compared
    // without regard to case. The look lives as long as this object and until it is loaded again.
    const ElementLook* element(std::string_view name, SkinProblem& problem) const;

    // Those of the skin and those that it lacks.
    std::size_t elementCount() const { return elements_.size(); }

    // The skin's values of the program's four colours, for when the program has none of its own.
    Pixel colour(ColourSource source) const { return colours_[static_cast<std::size_t>(source)]; }

    // Everything that is wrong, in the order of the file: for checking a skin.
    std::vector<SkinProblem> problems() const { return problems_; }

private:
    class Loader;
    struct Entry {
        std::optional<ElementLook> look;  // none: problem says why
        SkinProblem problem;
    };

    std::string name_;
    std::map<std::string, Entry, std::less<>> elements_;  // by name in lower case
    std::array<Pixel, 5> colours_{};
    std::vector<SkinProblem> problems_;
};

}  // namespace korvane
