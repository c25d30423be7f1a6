// Fuzz target: whatever the date file holds, every title can be looked up, and a stamped one has today's date from then
// on, in memory and in the file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "history/DateStore.h"
#include "platform/memory/MemorySystem.h"
#include "regfile/RegFile.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

constexpr const char* kPath = "DFile.mrc";
constexpr const char* kToday = "6/15/2005";
constexpr const char* kCreatedBefore =
    "REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Korvane Manager]\n\"DateModefiedFlage\"=dword:00000001\n";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::MemoryRegistry registry;
    require(!korvane::loadRegFile(kCreatedBefore, registry));
    korvane::MemoryFiles files;
    korvane::FixedClock clock;
    files.put(kPath, {.text = {reinterpret_cast<const char*>(data), size}});
    const std::vector<std::string> titles{"One", "Two", "Two and a half"};
    korvane::DateStore store(registry, files, clock, kPath, [&] { return titles; });
    store.Initialise();
    for (const std::string& title : titles) {
        store.LookUp(title);
    }
    for (const std::string& title : titles) {
        require(store.Stamp(title));
        require(store.LookUp(title) == kToday);
        require(files.find(kPath)->text.find("korvane(\"" + title + "\"," + kToday + ")") != std::string::npos);
    }
    // The next run reads the same.
    korvane::DateStore next(registry, files, clock, kPath, [&] { return titles; });
    next.Initialise();
    require(next.LookUp("Two and a half") == kToday);
    return 0;
}
