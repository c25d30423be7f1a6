// Writes the language file of the program's own texts to standard output:
//     make_language_template > data/Language/English.ini
#include "docgen/LanguageTemplate.h"

#include <cstdio>

int main() {
    const std::string text = korvane::makeLanguageTemplate();
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0 ? 0 : 1;
}
