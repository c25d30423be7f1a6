// What an apply has changed in the registry, and what not, from the calls it
// made.
#pragma once

#include "cli/WriteJournal.h"

#include <span>
#include <string>
#include <vector>

namespace korvane {

struct ApplyReport {
    std::vector<std::string> written;     // keys and values, in the program's texts
    std::vector<std::string> notWritten;  // the same, each with the reason
    bool failed = false;                  // something is not written for another reason than that its key is missing
    bool anythingDone = false;            // or found done already: what was to be deleted was not there

    // In a word or two.
    std::string summary() const;
};

// What failed first and was done in another way afterwards counts as done.
ApplyReport reportOf(std::span<const RegistryAttempt> attempts);

}  // namespace korvane
