// Looking up translated texts.
#include "lang/LanguageFile.h"

namespace korvane {

std::string Unescape(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        if (text[i] == '\\' && (next == 'n' || next == 't')) {
            result += next == 'n' ? '\n' : '\t';
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}

std::string LanguageFile::read(std::string_view section, std::string_view key, std::size_t size) const {
    return Unescape(profile_->getString(section, key, "", size, path_));
}

std::string LanguageFile::text(std::string_view section, int key) const { return text(section, std::to_string(key)); }

void LanguageFile::translateDialog(DialogControls& dialog, int templateId) const {
    if (templateId == 0) {
        return;
    }
    const std::string section = std::to_string(templateId);
    const std::string caption = read(section, section, 260);
    if (!caption.empty()) {
        dialog.setCaption(caption);
    }
    for (const int control : dialog.controlIds()) {
        translateControl(dialog, section, control);
    }
}

void LanguageFile::translateControl(DialogControls& dialog, std::string_view section, int control) const {
    const std::string translated = text(section, control);
    if (!translated.empty()) {
        dialog.setText(control, translated);
    }
}

std::string itemSection(int id) { return "Item" + std::to_string(id); }

}  // namespace korvane
