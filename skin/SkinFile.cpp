// Assigns each line to its section; SkinElement knows what the lines of an element mean.
#include "skin/SkinFile.h"

#include "skin/SkinElement.h"
#include "skin/SkinProperties.h"
#include "skin/SkinText.h"
#include "skin/SkinValues.h"

#include <algorithm>
#include <map>
#include <utility>

namespace korvane::skin {
namespace {

constexpr std::string_view kElementNames[] = {"Main",   "SubMain",  "CheckBox",   "Label",
                                              "Button", "Splitter", "FrameButton"};
// A text with more of them was not written as a skin. The limit also bounds the time for reading any text.
constexpr std::size_t kMostMistakes = 100;

}  // namespace

std::string describe(const SkinProblem& problem) {
    return problem.file + (problem.line > 0 ? ", line " + std::to_string(problem.line) : "") + ": " + problem.reason;
}

class SkinFile::Loader {
public:
    Loader(SkinFile& skin, const ReadSkinFile& read) : skin_(skin), read_(read) {}

    // Returns what makes the whole skin unusable, if anything.
    std::optional<SkinProblem> run(std::string_view text) {
        SkinProblem problem;
        if (!checkSkinText(skin_.name_, "Skin", text, problem)) {
            skin_.problems_.push_back(problem);
            return problem;
        }
        SkinLines lines(text);
        for (SkinLine line; !stopped_ && lines.next(line);) {
            if (line.kind == SkinLine::Kind::Section) {
                enter(line);
            } else if (line.kind == SkinLine::Kind::Unclear && line.name.starts_with('[')) {
                // The section that was meant is unknown, so what follows belongs to none.
                section_ = Section::PassedOver;
                mistake(line.number, quotedPart(line.name) + " does not end with a bracket");
            } else {
                take(line);
            }
        }
        if (!stopped_) {
            finishElements();
        }
        return refusal_;
    }

private:
    enum class Section { None, Skin, Colours, Element, PassedOver };

    struct Element {
        std::string_view name;
        std::optional<SkinElement> section;
        std::optional<SkinProblem> problem;  // the first
    };

    // A mistake in the given element, or in the skin as a whole.
    void mistake(int line, std::string reason, Element* element = nullptr) {
        if (stopped_) {
            return;
        }
        if (skin_.problems_.size() == kMostMistakes) {
            stopped_ = true;
            element = nullptr;
            reason = "there are more than " + std::to_string(kMostMistakes) + " mistakes: reading ends here";
        }
        const SkinProblem problem{skin_.name_, line, std::move(reason)};
        skin_.problems_.push_back(problem);
        if (element != nullptr && !element->problem) {
            element->problem = problem;
        }
        if (stopped_ && !refusal_) {
            refusal_ = problem;
        }
    }

    // A mistake that makes the whole skin unusable.
    void refuse(int line, std::string reason) {
        mistake(line, std::move(reason));
        if (!refusal_) {
            refusal_ = skin_.problems_.back();
        }
    }

    void enter(const SkinLine& line) {
        const auto named = [&](std::string_view name) { return equalIgnoringCase(name, line.name); };
        section_ = Section::PassedOver;
        if (named("Skin") || named("Colors")) {
            const Section section = named("Skin") ? Section::Skin : Section::Colours;
            bool& seen = section == Section::Skin ? skinSeen_ : coloursSeen_;
            if (std::exchange(seen, true)) {
                mistake(line.number, "there is a section " + quotedPart(line.name) + " above already");
            } else {
                section_ = section;
            }
            return;
        }
        current_ = std::ranges::find_if(elements_, named, &Element::name);
        if (current_ == elements_.end()) {
            mistake(line.number, "there is no section " + quotedPart(line.name) + " in a skin");
        } else if (current_->section) {
            mistake(line.number, "there is a section " + quotedPart(line.name) + " above already", &*current_);
        } else {
            section_ = Section::Element;
            current_->section.emplace(current_->name == "Main");
        }
    }

    void take(const SkinLine& line) {
        if (section_ == Section::PassedOver) {
            return;
        }
        Element* element = section_ == Section::Element ? &*current_ : nullptr;
        if (line.kind == SkinLine::Kind::Unclear) {
            mistake(line.number, quotedPart(line.name) + " is neither a section nor a key with a value", element);
        } else if (section_ == Section::None) {
            mistake(line.number, quotedPart(line.name) + " stands above the first section");
        } else if (section_ == Section::Skin) {
            takeHeading(line);
        } else if (section_ == Section::Colours) {
            takeColour(line);
        } else if (std::string wrong = element->section->take(line); !wrong.empty()) {
            mistake(line.number, std::move(wrong), element);
        }
    }

    void takeHeading(const SkinLine& line) {
        constexpr std::string_view kKeys[] = {"Format", "Name", "Author"};
        if (std::ranges::none_of(kKeys, [&](std::string_view key) { return equalIgnoringCase(key, line.name); })) {
            mistake(line.number, quotedPart(line.name) + " is no key of this section");
        }
    }

    void takeColour(const SkinLine& line) {
        std::size_t i = 1;
        while (i < skin_.colours_.size() && !equalIgnoringCase(colourName(static_cast<ColourSource>(i)), line.name)) {
            ++i;
        }
        if (i == skin_.colours_.size()) {
            mistake(line.number, quotedPart(line.name) + " is no key of this section");
        } else if (std::exchange(colourSeen_[i], true)) {
            mistake(line.number, quotedPart(line.name) + " stands in this section twice");
        } else if (const std::string wrong = takeOwnColour(line.value, skin_.colours_[i]); !wrong.empty()) {
            refuse(line.number, std::string(line.name) + ": " + wrong);
        }
    }

    void finishElements() {
        for (Element& element : elements_) {
            ElementLook look;
            finish(element, look);
            Entry& entry = skin_.elements_.emplace_back(Entry{.name = element.name});
            if (element.problem) {
                entry.problem = *element.problem;
            } else {
                entry.look = std::move(look);
            }
        }
        // In the order of the file; what it lacks comes last.
        std::ranges::stable_sort(skin_.problems_, {}, [](const SkinProblem& problem) {
            return static_cast<unsigned>(problem.line) - 1;
        });
    }

    void finish(Element& element, ElementLook& look) {
        int line = 0;
        std::string wrong = "there is no section [" + std::string(element.name) + ']';
        if (element.section) {
            const auto findPicture = [this](std::string_view name, auto& picture) { return find(name, picture); };
            wrong = element.section->finish(findPicture, look, line);
        }
        if (!wrong.empty()) {
            mistake(line, std::move(wrong), &element);
        }
    }

    // Elements that name the same picture share it.
    std::string find(std::string_view name, std::shared_ptr<const Picture>& picture) {
        const auto found = pictures_.find(name);
        if (found != pictures_.end()) {
            picture = found->second;
            return {};
        }
        const auto loaded = std::make_shared<Picture>();
        std::string wrong = readSkinPicture(name, read_, *loaded);
        if (wrong.empty()) {
            picture = loaded;
            pictures_.emplace(name, loaded);
        }
        return wrong;
    }

    SkinFile& skin_;
    const ReadSkinFile& read_;
    Section section_ = Section::None;
    bool skinSeen_ = false;
    bool coloursSeen_ = false;
    std::array<bool, 5> colourSeen_{};
    std::array<Element, std::size(kElementNames)> elements_ = [] {
        std::array<Element, std::size(kElementNames)> elements;
        for (std::size_t i = 0; i < elements.size(); ++i) {
            elements[i].name = kElementNames[i];
        }
        return elements;
    }();
    std::array<Element, std::size(kElementNames)>::iterator current_ = elements_.end();
    std::map<std::string, std::shared_ptr<const Picture>, std::less<>> pictures_;
    std::optional<SkinProblem> refusal_;
    bool stopped_ = false;
};

bool SkinFile::load(const std::string& name, std::string_view text, const ReadSkinFile& read, SkinProblem& problem) {
    const SkinProperties defaults;
    name_ = name;
    elements_.clear();
    problems_.clear();
    colours_ = {0xFF000000, defaults.back, defaults.fore, defaults.panel, defaults.panelText};
    const std::optional<SkinProblem> refusal = Loader(*this, read).run(text);
    if (refusal) {
        elements_.clear();
        problem = *refusal;
    }
    return !refusal;
}

const ElementLook* SkinFile::element(std::string_view name, SkinProblem& problem) const {
    const auto found = std::ranges::find_if(
        elements_, [name](const Entry& entry) { return equalIgnoringCase(entry.name, name); });
    if (found == elements_.end()) {
        problem = {name_, 0, "there is no element " + quotedPart(name)};
        return nullptr;
    }
    if (!found->look) {
        problem = found->problem;
        return nullptr;
    }
    return &*found->look;
}

}  // namespace korvane::skin
