// list: the items of the tree, in its order.
#include "catalogue/Catalogue.h"
#include "cli/Commands.h"
#include "cli/SafeText.h"
#include "cli/Session.h"

namespace korvane {
namespace {

struct ListedItem {
    const TweakItem& item;
    bool isCategory;
    bool inTree;
    int depth;
};

std::string listLine(const ListedItem& listed, const CodePage& encoding) {
    const std::string id = std::to_string(listed.item.id);
    std::string line(id.size() < 3 ? 3 - id.size() : 0, ' ');
    line += id + (listed.inTree ? "  " : "* ") + (listed.isCategory ? "category  " : "tweak     ");
    line.append(static_cast<std::size_t>(listed.depth) * 2, ' ');
    return line + safeLine(toHost(listed.item.title, encoding)) + '\n';
}

void writeItem(JsonWriter& json, const ListedItem& listed, const CodePage& encoding) {
    json.beginObject();
    json.name("item");
    json.number(listed.item.id);
    json.name("category");
    json.boolean(listed.isCategory);
    json.name("title");
    json.text(toUtf8(listed.item.title, encoding));
    json.name("inTree");
    json.boolean(listed.inTree);
    json.endObject();
}

std::vector<ListedItem> listedItems(Session& session, bool all) {
    std::vector<ListedItem> listed;
    int depth = 0;
    for (std::size_t n = 0; n < session.items().size(); ++n) {
        const TweakItem& item = session.items()[n];
        const bool isCategory = findTweak(static_cast<int>(n))->isCategory();
        const MemoryTreeRow* row = session.window().tree().findData(static_cast<std::uint32_t>(item.id));
        if (row == nullptr && !all) {
            continue;
        }
        // A record without a row stands where its row would be: beside its neighbour, or below a category.
        listed.push_back({item, isCategory, row != nullptr, row != nullptr ? row->depth : depth});
        depth = row != nullptr ? row->depth + (isCategory ? 1 : 0) : depth;
    }
    return listed;
}

}  // namespace

ExitStatus listCommand(const CommandLine& options, Output& output) {
    Session session(options, output);
    if (const std::optional<Problem> problem = session.start()) {
        return output.fail(*problem);
    }
    JsonWriter json;
    json.beginObject();
    json.name("items");
    json.beginArray();
    std::string text;
    bool marked = false;
    for (const ListedItem& listed : listedItems(session, options.all)) {
        text += listLine(listed, session.encoding());
        writeItem(json, listed, session.encoding());
        marked = marked || !listed.inTree;
    }
    json.endArray();
    json.endObject();
    if (options.json) {
        output.print(json);
    } else {
        output.print(text + (marked ? "\n* has no row in the tree\n" : ""));
    }
    return ExitStatus::Done;
}

}  // namespace korvane
