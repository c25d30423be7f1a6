// show: an item's page.
#include "cli/Commands.h"
#include "cli/ItemLookup.h"
#include "cli/PageJson.h"
#include "cli/PageText.h"

namespace korvane {

ExitStatus showCommand(const CommandLine& options, Output& output) {
    Session session(options, output);
    int item = 0;
    std::optional<Problem> problem = session.start();
    if (!problem) {
        problem = findItem(session, options.item, item);
    }
    if (problem) {
        return output.fail(*problem);
    }
    session.select(item);
    if (options.json) {
        JsonWriter json;
        writePage(json, session.view(), session.encoding());
        output.print(json);
    } else {
        output.print(toHost(pageText(session.view()), session.encoding()));
    }
    return ExitStatus::Done;
}

}  // namespace korvane
