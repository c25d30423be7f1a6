// The commands.
#include "cli/Run.h"

#include "catalogue/Catalogue.h"
#include "cli/CheckSkin.h"
#include "cli/CommandLine.h"
#include "cli/Json.h"
#include "cli/PageControls.h"
#include "cli/PageJson.h"
#include "cli/PageText.h"
#include "cli/Session.h"
#include "text/Codepage.h"

#include <variant>

namespace korvane {
namespace {

// Which items have that title, exactly or but for capital letters.
std::vector<int> itemsTitled(const ItemTable& items, std::string_view title, bool exactly) {
    const std::u16string wanted = upperCase(fromAnsi(title));
    std::vector<int> found;
    for (std::size_t n = 0; n < items.size(); ++n) {
        if (exactly ? items[n].title == title : upperCase(fromAnsi(items[n].title)) == wanted) {
            found.push_back(items[n].id);
        }
    }
    return found;
}

std::optional<Problem> findItem(const Session& session, const std::string& argument, int& item) {
    const ItemTable& items = session.items();
    if (const std::optional<int> number = wholeNumber(argument)) {
        item = *number;
        return static_cast<std::size_t>(item) < items.size()
                   ? std::nullopt
                   : std::optional(wrongUsage("there is no item " + argument + ": the last one is " +
                                              std::to_string(items.size() - 1)));
    }
    const std::optional<std::string> title = fromArgument(argument, session.encoding());
    std::vector<int> found = title ? itemsTitled(items, *title, true) : std::vector<int>();
    if (title && found.empty()) {
        found = itemsTitled(items, *title, false);
    }
    if (found.size() == 1) {
        item = found.front();
        return std::nullopt;
    }
    std::string message = "no item has the title " + quotedForMessage(argument);
    if (!found.empty()) {
        message = quotedForMessage(argument) + " is the title of several items:";
        for (const int each : found) {
            message += ' ' + std::to_string(each);
        }
    }
    return wrongUsage(message);
}

// One run: the commands write to `out`, and to `err` what a person should know beside it.
class Runner {
public:
    Runner(const CommandLine& options, std::string& out, std::string& err)
        : options_(options), out_(out), err_(err), session_(options) {}

    ExitStatus run() {
        ExitStatus status = ExitStatus::Done;
        std::optional<Problem> problem = session_.start();
        // The live registry keeps what the start has written to it, so the date file must be kept as well.
        if (!problem && !session_.worksOnFile()) {
            saveDates();
        }
        if (!problem && options_.command == Command::List) {
            list();
        } else if (!problem) {
            problem = runOnItem(status);
        }
        if (problem) {
            note(problem->message);
            err_ += problem->hintsAtHelp ? "kmctl --help tells more\n" : "";
            status = problem->status;
        }
        return status;
    }

private:
    bool saveDates() {
        const bool saved = session_.saveDates();
        if (!saved) {
            note("the dates could not be written to the program folder");
        }
        return saved;
    }

    void note(const std::string& message) { err_ += "kmctl: " + message + '\n'; }

    void list() {
        JsonWriter json;
        json.beginObject();
        json.name("items");
        json.beginArray();
        std::string text;
        int depth = 0;
        bool marked = false;
        for (std::size_t n = 0; n < session_.items().size(); ++n) {
            const TweakItem& item = session_.items()[n];
            const bool isCategory = findTweak(static_cast<int>(n))->isCategory();
            const MemoryTreeRow* row = session_.window().tree().findData(static_cast<std::uint32_t>(item.id));
            if (row == nullptr && !options_.all) {
                continue;
            }
            // A record without a row stands where its row would be: beside its neighbour, or below a category.
            const int shownDepth = row != nullptr ? row->depth : depth;
            depth = row != nullptr ? row->depth + (isCategory ? 1 : 0) : depth;
            marked = marked || row == nullptr;
            text += listLine(item, isCategory, row != nullptr, shownDepth);
            json.beginObject();
            json.name("item");
            json.number(item.id);
            json.name("category");
            json.boolean(isCategory);
            json.name("title");
            json.text(toUtf8(item.title, session_.encoding()));
            json.name("inTree");
            json.boolean(row != nullptr);
            json.endObject();
        }
        json.endArray();
        json.endObject();
        text += marked ? "\n* has no row in the tree\n" : "";
        print(json, text);
    }

    static std::string listLine(const TweakItem& item, bool isCategory, bool inTree, int depth) {
        const std::string id = std::to_string(item.id);
        std::string line(id.size() < 3 ? 3 - id.size() : 0, ' ');
        line += id + (inTree ? "  " : "* ") + (isCategory ? "category  " : "tweak     ");
        line.append(static_cast<std::size_t>(depth) * 2, ' ');
        return line + item.title + '\n';
    }

    std::optional<Problem> runOnItem(ExitStatus& status) {
        int item = 0;
        if (std::optional<Problem> problem = findItem(session_, options_.item, item)) {
            return problem;
        }
        session_.select(item);
        if (options_.command == Command::Show) {
            JsonWriter json;
            writePage(json, session_.view(), session_.encoding());
            print(json, pageText(session_.view()));
            return std::nullopt;
        }
        return apply(item, status);
    }

    std::optional<Problem> apply(int item, ExitStatus& status) {
        MemoryDialog* page = session_.page();
        if (page == nullptr) {
            printApplied(false, "");
            return failure("item " + std::to_string(item) + " shows no page: there is nothing to apply");
        }
        for (const Assignment& assignment : options_.assignments) {
            if (const auto reason = setControl(*page, assignment, session_.encoding())) {
                return wrongUsage(*reason);
            }
        }
        if (!session_.window().clickApply() || !findTweak(item)->hasApply()) {
            printApplied(false, ": nothing to apply\n");
            return std::nullopt;
        }
        bool written = false;
        if (std::optional<Problem> problem = session_.saveRegistry(written)) {
            return problem;
        }
        const bool stamped = saveDates() && session_.stampCount() > 0;
        const bool refused = !session_.alerts().empty();
        std::string text = refused ? ": refused" : ": applied";
        text += stamped && options_.programFolder ? ", and dated today\n" : "\n";
        if (session_.worksOnFile()) {
            text += *options_.registry + (written ? ": written\n" : ": nothing in it has changed\n");
        }
        printApplied(stamped, text);
        status = refused ? ExitStatus::Refused : ExitStatus::Done;
        return std::nullopt;
    }

    // What happened: the text stands behind the title.
    void printApplied(bool stamped, const std::string& text) {
        const PageView view = session_.view();
        JsonWriter json;
        json.beginObject();
        json.name("item");
        json.number(view.item);
        json.name("alerts");
        json.beginArray();
        for (const MessageBoxRequest& alert : session_.alerts()) {
            writeAlert(json, alert);
        }
        json.endArray();
        json.name("stamped");
        json.boolean(stamped);
        json.name("page");
        writePage(json, view, session_.encoding());
        json.endObject();
        if (options_.json) {
            print(json, "");
            return;
        }
        for (const MessageBoxRequest& alert : session_.alerts()) {
            note(toHost(alert.text));
        }
        out_ += text.empty() ? "" : toHost(view.title) + " (" + std::to_string(view.item) + ')' + text;
    }

    void writeAlert(JsonWriter& json, const MessageBoxRequest& alert) const {
        json.beginObject();
        json.name("id");
        json.number(alert.stringId);
        json.name("caption");
        json.text(toUtf8(alert.caption, session_.encoding()));
        json.name("text");
        json.text(toUtf8(alert.text, session_.encoding()));
        json.endObject();
    }

    void print(const JsonWriter& json, const std::string& text) {
        out_ += options_.json ? json.json() + '\n' : toHost(text);
    }

    const CommandLine& options_;
    std::string& out_;
    std::string& err_;
    Session session_;
};

}  // namespace

int run(std::span<const std::string> arguments, std::string& out, std::string& err) {
    const auto parsed = parseCommandLine(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        err += "kmctl: " + error->message + "\nkmctl --help tells more\n";
        return static_cast<int>(ExitStatus::WrongUsage);
    }
    const CommandLine& options = std::get<CommandLine>(parsed);
    if (options.command == Command::Help) {
        out += helpText();
    } else if (options.command == Command::Version) {
        out += "kmctl " + std::string(kProgramVersion) + '\n';
    } else if (options.command == Command::CheckSkin) {
        return static_cast<int>(checkSkin(options, out, err));
    } else {
        return static_cast<int>(Runner(options, out, err).run());
    }
    return static_cast<int>(ExitStatus::Done);
}

}  // namespace korvane
