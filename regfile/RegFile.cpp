// Loading, saving and dumping whole registries.
#include "regfile/RegFile.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "regfile/RegFileEditor.h"
#include "regfile/RegFileIndex.h"
#include "regfile/RegFileScanner.h"
#include "regfile/RegFileWriter.h"
#include "text/CaseFolding.h"
#include "text/Utf.h"

namespace korvane {
namespace {

// Only looks whether there are errors.
class Nothing final : public RegFileSink {
public:
    void section(const RegFileSection&) override {}
    void value(const RegFileEntry&) override {}
};

// Changes the tree as somebody would who did by hand what the file says.
class Merger final : public RegFileSink {
public:
    Merger(const RegFileText& text, RegistryTree& tree) : text_(text), tree_(tree) {}

    void section(const RegFileSection& section) override {
        const KeyId root = RegistryTree::root(section.root);
        if (!section.deletes) {
            key_ = tree_.create(root, section.path);
        } else if (const KeyId found = tree_.find(root, section.path); found != kNoKey) {
            tree_.remove(found);
        }
    }
    void value(const RegFileEntry& entry) override {
        RegistryValue value = readEntry(text_, entry);
        if (entry.kind == RegFileEntry::Kind::Deletion) {
            tree_.removeValue(key_, value.name);
        } else {
            tree_.setValue(key_, value.name, value.type, std::move(value.data));
        }
    }

private:
    const RegFileText& text_;
    RegistryTree& tree_;
    KeyId key_ = kNoKey;
};

std::optional<RegFileError> merge(const RegFileText& text, MemoryRegistry& registry) {
    Nothing nothing;
    if (std::optional<RegFileError> error = scanRegFile(text, nothing)) {
        return error;
    }
    Merger merger(text, registry.tree());
    scanRegFile(text, merger);
    if (registry.file() == nullptr) {
        registry.setFile(std::make_unique<RegFileIndex>(RegFileText(text.form())));
    }
    return std::nullopt;
}

bool isPristine(const MemoryRegistry& registry) {
    return registry.file() == nullptr && registry.tree().changedKeys().empty();
}

void dumpBelow(const RegistryTree& tree, KeyId key, RegFileWriter& writer, std::u16string& text) {
    const RegistryValues& values = tree.values(key);
    if (!values.empty() || (!tree.hasSubkeys(key) && !RegistryTree::isRoot(key))) {
        std::vector<std::pair<std::u16string, const RegistryValue*>> sorted;
        for (const RegistryValue& value : values) {
            sorted.emplace_back(upperCase(value.name), &value);
        }
        std::sort(sorted.begin(), sorted.end());
        text += text.empty() ? u"" : u"\n";
        text.append(u"[").append(tree.path(key)).append(u"]\n");
        for (const auto& [upperName, value] : sorted) {
            writer.appendValue(*value, text);
        }
    }
    for (const KeyId subkey : tree.subkeys(key)) {
        dumpBelow(tree, subkey, writer, text);
    }
}

}  // namespace

std::optional<RegFileError> loadRegFile(std::string bytes, MemoryRegistry& registry) {
    RegFileText text;
    if (std::optional<RegFileError> error = RegFileText::read(std::move(bytes), registry.codePage(), text)) {
        return error;
    }
    if (!isPristine(registry)) {
        return merge(text, registry);
    }
    RegistryTree tree;
    auto file = std::make_unique<RegFileIndex>();
    if (std::optional<RegFileError> error = file->build(std::move(text), tree)) {
        return error;
    }
    registry.setContent(std::move(tree), std::move(file));
    return std::nullopt;
}

std::optional<std::string> saveRegFile(const MemoryRegistry& registry, std::string* error) {
    const RegFileIndex nothing;
    const RegFileIndex& file = registry.file() != nullptr ? *registry.file() : nothing;
    RegFileEditor editor(registry.tree(), file);
    if (!editor.run()) {
        if (error != nullptr) {
            *error = editor.error();
        }
        return std::nullopt;
    }
    std::vector<RegFileEdit> edits = editor.takeEdits();
    if (edits.empty()) {
        return file.text().bytes();
    }
    return file.text().asFile(applyEdits(file.text(), std::move(edits)));
}

std::string dumpRegistry(const MemoryRegistry& registry) {
    RegFileWriter writer;
    std::u16string text;
    for (std::size_t i = 0; i < kRegistryRoots.size(); ++i) {
        dumpBelow(registry.tree(), RegistryTree::root(i), writer, text);
    }
    return toUtf8(text);
}

std::string dumpKey(const MemoryRegistry& registry, Root root, std::string_view path) {
    const RegistryTree& tree = registry.tree();
    const KeyId key = tree.find(RegistryTree::root(root), registry.codePage().toUtf16(path));
    RegFileWriter writer;
    std::u16string text;
    if (key != kNoKey) {
        dumpBelow(tree, key, writer, text);
    }
    return toUtf8(text);
}

}  // namespace korvane
