// The one walk over a tweak's controls.
#include "docgen/TweakControls.h"

#include "pages/PageLayout.h"

namespace korvane {
namespace {

ControlText textOf(const CheckBox& box, int id) { return {box.text, "check box", id}; }
ControlText textOf(const Field& field, const RowControls& row) { return {field.label, "edit box", row.edit}; }
ControlText textOf(const ColourField& colour, const RowControls& row) { return {colour.label, "color list", row.combo}; }
ControlText textOf(const Choice& choice, const RowControls& row) { return {choice.label, "combo box", row.combo}; }
ControlText textOf(const Table&, int id) { return {{}, "list", id}; }

}  // namespace

std::vector<ControlText> controlTexts(const Tweak& tweak) {
    std::vector<ControlText> texts;
    forEachControl(tweak, [&](const auto& control, const auto& ids) {
        texts.push_back(textOf(control, ids));
        texts.back().binding = describe(control);
    });
    if (tweak.page == Page::CheckList) {
        texts.back().kind = "list of check boxes";
    }
    for (const auto& fixedTexts : {tweak.writesFirst, tweak.writesLast}) {
        for (const FixedText& fixed : fixedTexts) {
            texts.push_back({.name = {}, .kind = "no control", .control = 0, .binding = describe(fixed)});
        }
    }
    return texts;
}

}  // namespace korvane
