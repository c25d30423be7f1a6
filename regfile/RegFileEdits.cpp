// Lines, as an editor of text sees them.
#include "regfile/RegFileEdits.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace korvane {
namespace {

bool isBlankLine(const RegFileText& text, std::size_t offset) {
    for (; offset < text.bytes().size(); offset += text.unit()) {
        const char16_t c = text.unitAt(offset);
        if (c != u' ' && c != u'\t') {
            return c == u'\r' || c == u'\n';
        }
    }
    return true;
}

std::size_t skipLines(const RegFileText& text, std::size_t from, std::size_t end, bool blank) {
    while (from < end && isBlankLine(text, from) == blank) {
        from = text.nextLine(from);
    }
    return from;
}

std::size_t endOfPreamble(const RegFileText& text, std::size_t end) {
    const std::size_t header = text.nextLine(text.start());
    std::size_t last = header;
    for (std::size_t at = header; at < end;) {
        const std::size_t comments = skipLines(text, at, end, false);
        const bool aboveKey = comments == end && end < text.bytes().size();
        if (comments != at && (!aboveKey || at == header)) {
            last = comments;
        }
        at = skipLines(text, comments, end, true);
    }
    return last;
}

}  // namespace

SectionEnd endOf(const RegFileIndex& file, RegFileIndex::SectionId section) {
    const RegFileText& text = file.text();
    const std::size_t end = file.range(section).end;
    std::size_t last = 0;
    if (section == RegFileIndex::kPreamble) {
        last = endOfPreamble(text, end);
    } else {
        const std::vector<RegFileEntry> entries = file.entries(section);
        last = entries.empty() ? file.header(section).first.end : entries.back().lines.end;
        const std::size_t comments = skipLines(text, last, end, false);
        last = comments == end && end < text.bytes().size() ? last : comments;
    }
    return {last, skipLines(text, last, end, true)};
}

std::string applyEdits(const RegFileText& text, std::vector<RegFileEdit> edits) {
    const std::string& before = text.bytes();
    const std::string lineEnd = text.encode(text.lineEnd());
    std::stable_sort(edits.begin(), edits.end(), [](const RegFileEdit& a, const RegFileEdit& b) {
        return std::tie(a.begin, a.end) < std::tie(b.begin, b.end);
    });
    std::size_t added = 0;
    for (const RegFileEdit& edit : edits) {
        added += edit.bytes.size() + lineEnd.size();
    }
    std::string after;
    after.reserve(before.size() + added);
    std::size_t at = 0;
    bool endsWithNewLine = false;
    for (const RegFileEdit& edit : edits) {
        after.append(before, at, edit.begin - at);
        if (edit.lines && !text.endsLine(after)) {
            after += lineEnd;
        }
        after += edit.bytes;
        at = edit.end;
        endsWithNewLine = edit.lines && at == before.size();
    }
    after.append(before, at);
    if (endsWithNewLine && !text.endsLine(before)) {
        after.resize(after.size() - lineEnd.size());
    }
    return after;
}

}  // namespace korvane
