// Writes the document of all tweaks to standard output:
//     make_tweaks_document > docs/TWEAKS.md
#include "docgen/TweaksDocument.h"

#include <cstdio>

int main() {
    const std::string text = korvane::makeTweaksDocument();
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0 ? 0 : 1;
}
