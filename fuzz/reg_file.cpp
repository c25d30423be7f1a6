// Fuzz target: what loads must save in its own form, load again to the same state, and save to the same bytes. A file
// that does not load must leave no trace.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "regfile/RegFile.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    korvane::MemoryRegistry first;
    if (korvane::loadRegFile({reinterpret_cast<const char*>(data), size}, first)) {
        require(korvane::dumpRegistry(first).empty() && !first.tree().fileForm);
        return 0;
    }
    const std::optional<std::string> saved = korvane::saveRegFile(first);
    require(saved.has_value());
    korvane::MemoryRegistry second;
    require(!korvane::loadRegFile(*saved, second));
    require(korvane::dumpRegistry(second) == korvane::dumpRegistry(first));
    require(korvane::saveRegFile(second) == saved);
    return 0;
}
