// From calls to sentences.
#include "cli/ApplyReport.h"

#include "regfile/RegistryTree.h"
#include "text/CaseFolding.h"

#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace korvane {
namespace {

using Action = RegistryAttempt::Action;

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

// For looking up what else was tried under the same key; and of the same value or subkey.
std::string keyOf(const RegistryAttempt& attempt) {
    return std::to_string(static_cast<int>(attempt.root)) + lowerCase(attempt.path);
}
std::string nameOf(const RegistryAttempt& attempt) { return keyOf(attempt) + '\n' + lowerCase(attempt.name); }

// The last attempt of each kind, by its number.
struct LastAttempts {
    std::unordered_map<std::string, std::size_t> doneUnderKey;
    std::unordered_map<std::string, std::size_t> doneByName;
    std::unordered_map<std::string, std::size_t> valueUnderKey;

    explicit LastAttempts(std::span<const RegistryAttempt> attempts) {
        for (std::size_t i = 0; i < attempts.size(); ++i) {
            if (attempts[i].status == Status::Success) {
                doneUnderKey[keyOf(attempts[i])] = i;
                doneByName[nameOf(attempts[i])] = i;
            }
            if (isAboutValue(attempts[i].action)) {
                valueUnderKey[keyOf(attempts[i])] = i;
            }
        }
    }
};

bool isLaterThan(std::size_t number, const std::unordered_map<std::string, std::size_t>& last,
                 const std::string& what) {
    const auto found = last.find(what);
    return found != last.end() && found->second > number;
}

// Lines in the order in which they first came.
class Lines {
public:
    explicit Lines(std::vector<std::string>& lines) : lines_(lines) {}

    void addOnce(std::string line) {
        if (seen_.insert(line).second) {
            lines_.push_back(std::move(line));
        }
    }

private:
    std::vector<std::string>& lines_;
    std::unordered_set<std::string> seen_;
};

void addFailure(ApplyReport& report, Lines& notWritten, const RegistryAttempt& attempt) {
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
    notWritten.addOnce(placeOf(attempt) + ": " + reasonOf(attempt));
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
    Lines written(report.written);
    Lines notWritten(report.notWritten);
    const LastAttempts last(attempts);
    for (std::size_t i = 0; i < attempts.size(); ++i) {
        const RegistryAttempt& attempt = attempts[i];
        if (attempt.status == Status::Success) {
            report.anythingDone = true;
            // A key that was opened or made for a value needs no line of its own.
            const bool forValue =
                attempt.action == Action::CreateKey && isLaterThan(i, last.valueUnderKey, keyOf(attempt));
            if (!forValue) {
                written.addOnce(placeOf(attempt) + (deletes(attempt.action) ? ": deleted" : ""));
            }
        } else if (!(attempt.action == Action::Open ? isLaterThan(i, last.doneUnderKey, keyOf(attempt))
                                                    : isLaterThan(i, last.doneByName, nameOf(attempt)))) {
            addFailure(report, notWritten, attempt);
        }
    }
    return report;
}

}  // namespace korvane
