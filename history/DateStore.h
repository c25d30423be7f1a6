// The modification-date store: for every record of the item table the date on
// which it was last applied, kept in one text file beside the program. A record
// is the line
//     korvane("TITLE",M/D/YYYY)
// with the UTC date. The title is the key, so records that share a title share
// a date.
#pragma once

#include "platform/Registry.h"
#include "platform/System.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane {

// Where the dates are kept, and what says that their file was created.
enum class Dates : std::uint8_t {
    InFile,       // the file; a flag among the user's settings
    InFileAlone,  // the file; that it can be read. The registry is not touched, for it may be another machine's.
    InMemory,     // memory alone: neither a file nor the registry is touched
};

struct DatePlace {
    Dates kept = Dates::InFile;
    std::string path{};  // of the file
};

class DateStore {
public:
    // All titles, in ItemId order, as they are when they are asked for.
    using Titles = std::function<std::vector<std::string>()>;

    DateStore(Registry& registry, Files& files, Clock& clock, DatePlace place, Titles titles);

    // Loads the file; creates it, with today's date in every record, when it was never created. Makes sure that the
    // language setting exists, if the flag stands beside it.
    void Initialise();

    // The date of a title, "M/D/YYYY". A title without a record makes the whole file anew: all earlier dates are lost
    // then. Empty when the title is not in the table or nothing can be created.
    std::string LookUp(std::string_view title);

    // Dates the record of that title today and leaves all others as they are, unless the title has none: then the
    // whole file is made anew. True: the date is on the disk (or in memory, if the dates are kept there).
    bool Stamp(std::string_view title);

    const DatePlace& place() const { return place_; }

    // Why the file could not be opened, read or written the last time; empty when it could. Never shown to the user.
    const std::string& lastFailure() const { return lastFailure_; }

private:
    bool openSettings(RegistryHandle& root, RegistryHandle& settings);
    bool createdBefore(const RegistryHandle& settings);
    void loadOrCreateFile(const RegistryHandle& settings);
    // False, with the copy in memory unchanged, when the file could not be written.
    bool createFile();
    std::string allRecords();
    std::string record(std::string_view title);
    void Reset();
    // Loads the file, after it has dated the pending title, if there is one.
    bool Update();
    // Dates the title in the text; false when the text has no record of it.
    bool replaceRecord(std::string& text, std::string_view title);
    // Makes the text, which is now that of the file, the copy in memory.
    void keep(std::string text);
    void noteFailure(std::string_view reason);

    Registry& registry_;
    Files& files_;
    Clock& clock_;
    DatePlace place_;
    Titles titles_;
    std::string text_;          // the whole file as last read or written, with the line ends that it ought to have
    bool modified_ = false;     // a stamp is pending
    std::string pendingTitle_;
    std::string lastFailure_;
};

}  // namespace korvane
