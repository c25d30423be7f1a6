// From calls to sentences.
#include "cli/ApplyReport.h"

#include "regfile/RegistryTree.h"
#include "text/CaseFolding.h"

#include <algorithm>

namespace korvane {
namespace {

using Action = RegistryAttempt::Action;

bool samePlace(const RegistryAttempt& a, const RegistryAttempt& b) {
    return a.root == b.root && equalIgnoringCase(a.path, b.path) &&
           (a.action == Action::Open || equalIgnoringCase(a.name, b.name));
}

bool isAboutValue(Action action) { return action == Action::SetValue || action == Action::DeleteValue; }

std::string placeOf(const RegistryAttempt& attempt) {
    std::string place(kRegistryRoots[static_cast<std::size_t>(attempt.root)].longName);
    place += attempt.path.empty() ? "" : '\\' + attempt.path;
    if (isAboutValue(attempt.action)) {
        place += attempt.name.empty() ? ", default value" : ", value \"" + attempt.name + '"';
    }
    return place;
}

bool deletes(Action action) {
    return action == Action::DeleteValue || action == Action::DeleteKey || action == Action::DeleteTree;
}

std::string reasonOf(const RegistryAttempt& attempt) {
    if (attempt.hasSubkeys) {
        return "the key stays because it has subkeys";
    }
    switch (attempt.status) {
        case Status::FileNotFound: return "there is no such key";
        case Status::AccessDenied: return "access is denied";
        default: return "error " + std::to_string(static_cast<int>(attempt.status));
    }
}

void addOnce(std::vector<std::string>& lines, std::string line) {
    if (std::ranges::find(lines, line) == lines.end()) {
        lines.push_back(std::move(line));
    }
}

void addFailure(ApplyReport& report, const RegistryAttempt& attempt) {
    const bool missing = attempt.status == Status::FileNotFound;
    if (missing && deletes(attempt.action)) {
        report.anythingDone = true;
        return;
    }
    // Below a key that was found, the program only looks which keys there are.
    if (missing && !attempt.fromRoot) {
        return;
    }
    report.failed = report.failed || (!missing && !attempt.hasSubkeys);
    addOnce(report.notWritten, placeOf(attempt) + ": " + reasonOf(attempt));
}

}  // namespace

std::string ApplyReport::summary() const {
    if (notWritten.empty()) {
        return anythingDone ? "applied" : "nothing to write";
    }
    return anythingDone ? "applied in part" : "nothing written";
}

ApplyReport reportOf(std::span<const RegistryAttempt> attempts) {
    ApplyReport report;
    for (std::size_t i = 0; i < attempts.size(); ++i) {
        const RegistryAttempt& attempt = attempts[i];
        const auto later = attempts.subspan(i + 1);
        const auto isSame = [&](const RegistryAttempt& other) { return samePlace(attempt, other); };
        if (attempt.status == Status::Success) {
            report.anythingDone = true;
            // A key that was opened or made for a value needs no line of its own.
            const bool forValue = attempt.action == Action::CreateKey &&
                                  std::ranges::any_of(later, [&](const RegistryAttempt& other) {
                                      return isAboutValue(other.action) && other.root == attempt.root &&
                                             equalIgnoringCase(other.path, attempt.path);
                                  });
            if (!forValue) {
                addOnce(report.written, placeOf(attempt) + (deletes(attempt.action) ? ": deleted" : ""));
            }
        } else if (std::ranges::none_of(later, [&](const RegistryAttempt& other) {
                       return other.status == Status::Success && isSame(other);
                   })) {
            addFailure(report, attempt);
        }
    }
    return report;
}

}  // namespace korvane
