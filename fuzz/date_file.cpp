// Fuzz target: whatever the date file holds and whatever a translation calls an item, every title can be looked up; a
// stamped one has today's date from then on, in memory and in the file; and all others keep theirs, unless the file had
// no record of the stamped one and was made anew. The first line of the input is a title.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "history/DateStore.h"
#include "platform/memory/MemorySystem.h"
#include "regfile/MemoryRegistry.h"

namespace {

using korvane::DateStore;

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

constexpr const char* kPath = "DFile.mrc";
constexpr const char* kToday = "6/15/2005";

std::vector<std::string> titlesWith(std::string_view own) {
    std::vector<std::string> titles{"One", "Two", "Two and a half"};
    // Titles that repeat another one or have a quotation mark are not supported; a comma is taken for the one before the
    // date; line ends and what looks like a record get lines of their own, which the search below would have to know.
    const bool plain = own.find_first_of("\",\r") == std::string_view::npos && !own.ends_with("korvane(");
    if (plain && std::ranges::find(titles, own) == titles.end()) {
        titles.emplace_back(own);
    }
    return titles;
}

// What a person would find: all dates that stand behind the title on its lines. The file's line ends do not count.
std::size_t records(std::string_view file, const std::string& title) {
    std::size_t count = 0;
    const std::string key = "korvane(\"" + title + '"';
    for (std::size_t at = 0; (at = file.find(key, at)) != std::string_view::npos; ++at) {
        ++count;
    }
    return count;
}

class Machine {
public:
    Machine(std::string_view file, std::vector<std::string> titles) : titles_(std::move(titles)) {
        files_.put(kPath, {.text = std::string(file)});
        start();
    }

    void start() {
        store_.emplace(registry_, files_, clock_, korvane::DatePlace{korvane::Dates::InFileAlone, kPath},
                       [this] { return titles_; });
        store_->Initialise();
    }

    void stamp(const std::string& title) {
        const std::string before = file();
        const bool anew = records(before, title) == 0;
        std::vector<std::string> dates;
        for (const std::string& other : titles_) {
            dates.push_back(records(before, other) == 0 ? std::string() : store_->LookUp(other));
        }
        require(store_->Stamp(title));
        require(store_->LookUp(title) == kToday);
        require(file().find("korvane(\"" + title + "\"," + kToday + ")") != std::string::npos);
        for (std::size_t i = 0; i < titles_.size(); ++i) {
            const std::string& other = titles_[i];
            if (other != title && !anew) {
                require(records(file(), other) == records(before, other));
                require(records(before, other) == 0 || store_->LookUp(other) == dates[i]);
            }
        }
    }

    void lookUpAll() {
        for (const std::string& title : titles_) {
            store_->LookUp(title);
        }
    }

    const std::string& file() const { return files_.find(kPath)->text; }
    const std::vector<std::string>& titles() const { return titles_; }
    DateStore& store() { return *store_; }

private:
    korvane::MemoryRegistry registry_;
    korvane::MemoryFiles files_;
    korvane::FixedClock clock_;
    std::vector<std::string> titles_;
    std::optional<DateStore> store_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t line = std::min(input.find('\n'), size);
    const std::vector<std::string> titles = titlesWith(input.substr(0, line));
    const std::string_view file = input.substr(std::min(line + 1, size));
    // The look-ups of one run must not make the file anew for the stamps of the other.
    Machine(file, titles).lookUpAll();
    Machine machine(file, titles);
    for (const std::string& title : titles) {
        machine.stamp(title);
    }
    // The next run reads the same.
    machine.start();
    for (const std::string& title : titles) {
        require(machine.store().LookUp(title) == kToday);
    }
    return 0;
}
