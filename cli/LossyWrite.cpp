// A text may have been changed on its way from the registry to a control, by another folder's name in front of it or
// quotation marks taken off: that it is the same text shows in its lost letters and what stands between them.
#include "cli/LossyWrite.h"

#include "cli/HostText.h"
#include "text/Utf.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr std::size_t kMostLettersNamed = 40;

std::string_view fromFirstToLastMark(std::string_view text) {
    const std::size_t first = text.find(kLostLetter);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.rfind(kLostLetter) + 1 - first);
}

// The letters that a text has lost; those of all texts when nothing says where it comes from.
std::u16string lettersOf(std::string_view text, const LostLetters& lost, const CodePage& encoding) {
    std::u16string same;
    std::u16string all;
    for (const LossyText& read : lost.read) {
        all += read.stored;
        same += fromFirstToLastMark(read.bytes) == fromFirstToLastMark(text) ? read.stored : std::u16string();
    }
    const std::u16string letters = encoding.lettersWithoutPlace(same.empty() ? all : same);
    return letters.empty() ? std::u16string{kLostLetter} : letters.substr(0, kMostLettersNamed);
}

struct Place {
    std::string name;
    std::string_view text;
};

// Where the page shows lost letters.
std::vector<Place> markedPlaces(const MemoryDialog& page) {
    std::vector<Place> places;
    const auto look = [&](std::string name, std::string_view text) {
        if (text.find(kLostLetter) != std::string_view::npos) {
            places.push_back({std::move(name), text});
        }
    };
    for (const MemoryControl& control : page.allControls()) {
        const std::string name = "control " + std::to_string(control.id);
        look(name, control.visible ? std::string_view(control.text) : std::string_view());
        for (std::size_t row = 0; control.visible && row < control.rows.size(); ++row) {
            look("row " + std::to_string(row) + " of " + name, control.rows[row].cell(0));
        }
    }
    return places;
}

}  // namespace

std::optional<std::string> whyLossy(const LostLetters& lost, const MemoryDialog* page, const CodePage& encoding) {
    if (lost.notWritten.empty()) {
        return std::nullopt;
    }
    std::vector<Place> places = page != nullptr ? markedPlaces(*page) : std::vector<Place>();
    const bool isShown = !places.empty();
    if (!isShown) {
        const LossyText& first = lost.notWritten.front();
        const std::string name = "the value \"" + toHostReadably(first.name) + "\" of " + toHostReadably(first.key);
        places.push_back({name, first.bytes});
    }
    std::string message;
    for (const Place& place : places) {
        message += (message.empty() ? "" : ", and ") + toHostReadably(lettersOf(place.text, lost, encoding)) + " of " +
                   place.name;
    }
    return "nothing is written, because code page " + std::to_string(encoding.number()) +
           " does not have the letters " + message + ". Name the file's code page with --code-page" +
           (isShown ? ", or give the control a value" : "");
}

}  // namespace korvane
