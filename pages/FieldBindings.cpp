// Edit boxes: the show and the apply of each kind side by side.
#include "pages/PageContext.h"

namespace korvane {
namespace {

void show(PageContext&, int, const Unbound&) {}
void apply(PageContext&, int, const Unbound&, WriteRound) {}

// ---- StringValue

struct Fold {
    std::string_view variable;
    std::string folder;
};

Fold foldOf(PageContext& context, Folding folding) {
    switch (folding) {
        case Folding::None: break;
        case Folding::WindowsFolder: return {"%SystemRoot%", context.platform.folders.windowsFolder()};
        case Folding::ProfilePrefix: return {"%USERPROFILE%", profilePrefix(context)};
    }
    return {};
}

void show(PageContext& context, int edit, const StringValue& binding) {
    const auto value = context.read(binding.key, binding.name);
    if (!value) {
        return;
    }
    std::string text = value->text();
    if (!binding.suffixStart.empty()) {
        text = text.substr(0, text.find(binding.suffixStart));
    }
    const Fold fold = foldOf(context, binding.folding);
    if (!fold.folder.empty()) {
        replaceAll(text, fold.variable, fold.folder);
    }
    context.page.setText(edit, text);
}

void apply(PageContext& context, int edit, const StringValue& binding, WriteRound round) {
    const KeyPath* path = binding.key.writtenIn(round);
    std::string text = context.page.text(edit);
    if (binding.withoutQuotes) {
        replaceAll(text, "\"", "");
    }
    if (path == nullptr || (text.empty() && binding.whenEmpty == WhenEmpty::WritesNothing)) {
        return;
    }
    const Fold fold = foldOf(context, binding.folding);
    replaceAll(text, fold.folder, fold.variable);
    if (text.empty() && binding.whenEmpty == WhenEmpty::Deletes) {
        context.remove(*path, binding.name);
    } else if (const OpenedKey key = context.openForWriting(path)) {
        writeText(context.platform.registry, key, binding.name, text.append(binding.suffix), binding.type);
    }
}

// ---- DwordNumber

void show(PageContext& context, int edit, const DwordNumber& binding) {
    if (const auto value = context.read(binding.key, binding.name)) {
        context.page.setText(edit, std::to_string(static_cast<std::int32_t>(value->number())));
    }
}

void apply(PageContext& context, int edit, const DwordNumber& binding, WriteRound round) {
    const std::string text = context.page.text(edit);
    const bool deletes = text.empty() && binding.whenEmpty == WhenEmpty::Deletes;
    const int number = decimalNumber(text);
    const bool tooSmall = !deletes && binding.minimum && number < *binding.minimum;
    if (tooSmall || (text.empty() && binding.whenEmpty == WhenEmpty::WritesNothing)) {
        return;
    }
    const OpenedKey key = context.openForWriting(binding.key.writtenIn(round));
    if (!key) {
        return;
    }
    if (deletes) {
        ignoreFailure(context.platform.registry.deleteValue(key.handle(), {}, binding.name));
    } else {
        writeNumber(context.platform.registry, key, binding.name, static_cast<std::uint32_t>(number));
    }
}

}  // namespace

// The path of the Application Data folder up to that name, with the separator before it. Empty except on Windows NT 4,
// 2000 and XP.
std::string profilePrefix(const PageContext& context) {
    if (!kWindowsNT.contains(context.version)) {
        return {};
    }
    const std::string folder = context.platform.folders.applicationDataFolder();
    const std::size_t end = folder.find("Application Data");
    return end == std::string::npos ? std::string() : folder.substr(0, end);
}

void showField(PageContext& context, int edit, const FieldBinding& binding) {
    std::visit([&](const auto& kind) { show(context, edit, kind); }, binding);
}

void applyField(PageContext& context, int edit, const FieldBinding& binding, WriteRound round) {
    std::visit([&](const auto& kind) { apply(context, edit, kind, round); }, binding);
}

}  // namespace korvane
