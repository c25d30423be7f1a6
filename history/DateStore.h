// The modification-date store: for every record of the item table the date on
// which it was last applied, kept in one text file beside the program. A record
// is the line
//     korvane("TITLE",M/D/YYYY)
// with the UTC date. The title is the key, so records that share a title share
// a date.
#pragma once

#include "platform/Registry.h"
#include "platform/System.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

class DateStore {
public:
    // All titles, in ItemId order, as they are when they are asked for.
    using Titles = std::function<std::vector<std::string>()>;

    // With an empty path the dates live in memory alone, and neither a file nor the registry is touched.
    DateStore(Registry& registry, Files& files, Clock& clock, std::string path, Titles titles);

    // Loads the file; creates it, with today's date in every record, when it was never created. Makes sure that the
    // language setting exists.
    void Initialise();

    // The date of a title, "M/D/YYYY". A title without a record makes the whole file anew: all earlier dates are lost
    // then. Empty when the title is not in the table or nothing can be created.
    std::string LookUp(std::string_view title);

    // Dates the record of that title today. False when the date could not be recorded.
    bool Stamp(std::string_view title);

    // Why the file could not be read or written the last time it was open; never shown to the user.
    const std::string& lastFailure() const { return lastFailure_; }

private:
    bool openSettings(RegistryHandle& root, RegistryHandle& settings);
    bool createdBefore(const RegistryHandle& settings);
    void createFile(const RegistryHandle& settings);
    std::string allRecords();
    std::string record(std::string_view title);
    void Reset();
    // Loads the file, after it has dated the pending title, if there is one.
    bool Update();
    // Dates the title in the text; false when the text has no record of it.
    bool replaceRecord(std::string& text, std::string_view title);
    void noteFailure(std::string_view reason);

    bool inMemory() const { return path_.empty(); }

    Registry& registry_;
    Files& files_;
    Clock& clock_;
    std::string path_;
    Titles titles_;
    std::string text_;          // the whole file as last read or written
    bool modified_ = false;     // a stamp is pending
    std::string pendingTitle_;
    std::string lastFailure_;
};

}  // namespace korvane
