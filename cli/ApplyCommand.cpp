// apply: sets controls of an item's page and presses "Apply Changes".
#include "catalogue/Catalogue.h"
#include "cli/ApplyReport.h"
#include "cli/Commands.h"
#include "cli/ItemLookup.h"
#include "cli/PageControls.h"
#include "cli/PageJson.h"
#include "cli/SafeText.h"
#include "res/ControlIds.h"

#include <algorithm>

namespace korvane {
namespace {

void writeAlert(JsonWriter& json, const MessageBoxRequest& alert, const CodePage& encoding) {
    json.beginObject();
    json.name("id");
    json.number(alert.stringId);
    json.name("caption");
    json.text(toUtf8(alert.caption, encoding));
    json.name("text");
    json.text(toUtf8(alert.text, encoding));
    json.endObject();
}

void printJson(Output& output, Session& session, bool stamped) {
    const PageView view = session.view();
    JsonWriter json;
    json.beginObject();
    json.name("item");
    json.number(view.item);
    json.name("alerts");
    json.beginArray();
    for (const MessageBoxRequest& alert : session.alerts()) {
        writeAlert(json, alert, session.encoding());
    }
    json.endArray();
    json.name("stamped");
    json.boolean(stamped);
    json.name("page");
    writePage(json, view, session.encoding());
    json.endObject();
    output.print(json);
}

class Apply {
public:
    Apply(const CommandLine& options, Output& output)
        : options_(options), output_(output), session_(options, output) {}

    ExitStatus run() {
        std::optional<Problem> problem = session_.start();
        if (!problem) {
            problem = findItem(session_, options_.item, item_);
        }
        if (!problem) {
            session_.select(item_);
            problem = setControls();
        }
        if (!problem) {
            problem = press();
        }
        return problem ? output_.fail(*problem) : status_;
    }

private:
    std::optional<Problem> setControls() {
        MemoryDialog* page = session_.page();
        if (page == nullptr) {
            report(false, {});
            return failure("item " + std::to_string(item_) + " shows no page: there is nothing to apply");
        }
        for (const Assignment& assignment : options_.assignments) {
            if (const auto reason = setControl(*page, assignment, session_.encoding())) {
                return wrongUsage(*reason);
            }
        }
        return colourIsChosen(*page);
    }

    // Nobody wants to store a colour that came up by chance; a refusal writes nothing anyway.
    std::optional<Problem> colourIsChosen(const MemoryDialog& page) {
        const bool given = std::ranges::find(options_.assignments, IDC_COLOUR_COMBO, &Assignment::control) !=
                           options_.assignments.end();
        if (given || !session_.showsRandomColour() || !session_.accepts(item_)) {
            return std::nullopt;
        }
        const std::string control = std::to_string(IDC_COLOUR_COMBO);
        return wrongUsage("none of the colours of control " + control + " is stored, and it shows one at random: add " +
                          control + "=NAME; it has " + entriesOf(*page.find(IDC_COLOUR_COMBO), session_.encoding()));
    }

    std::optional<Problem> press() {
        if (!session_.clickApply() || !findTweak(item_)->hasApply()) {
            report(false, "nothing to apply\n");
            return std::nullopt;
        }
        if (std::optional<Problem> problem = session_.lossyWrite()) {
            return problem;
        }
        bool written = false;
        if (std::optional<Problem> problem = session_.saveRegistry(written)) {
            return problem;
        }
        const bool stamped = session_.saveDates() && session_.stampCount() > 0;
        const bool refused = !session_.alerts().empty();
        const ApplyReport done = reportOf(session_.attempts());
        std::string text = refused ? "refused" : done.summary();
        text += stamped && options_.programFolder ? ", and dated today\n" : "\n";
        if (!done.notWritten.empty()) {
            for (const std::string& place : done.written) {
                text += "written: " + safeLine(toHost(place, session_.encoding())) + '\n';
            }
        }
        if (session_.worksOnFile()) {
            text += safeLine(*options_.registry) + (written ? ": written\n" : ": nothing in it has changed\n");
        }
        report(stamped, text);
        for (const std::string& place : done.notWritten) {
            output_.note("not written: " + toHost(place, session_.encoding()));
        }
        status_ = refused ? ExitStatus::Refused : done.failed ? ExitStatus::Failed : ExitStatus::Done;
        return std::nullopt;
    }

    // What happened: the text, if any, stands behind the title.
    void report(bool stamped, const std::string& text) {
        if (options_.json) {
            printJson(output_, session_, stamped);
            return;
        }
        for (const MessageBoxRequest& alert : session_.alerts()) {
            output_.note(toHost(alert.text, session_.encoding()));
        }
        if (!text.empty()) {
            const PageView view = session_.view();
            const std::string title = safeLine(toHost(view.title, session_.encoding()));
            output_.print(title + " (" + std::to_string(view.item) + "): " + text);
        }
    }

    const CommandLine& options_;
    Output& output_;
    Session session_;
    int item_ = 0;
    ExitStatus status_ = ExitStatus::Done;
};

}  // namespace

ExitStatus applyCommand(const CommandLine& options, Output& output) { return Apply(options, output).run(); }

}  // namespace korvane
