// Assigns the items to the pages of the help.
#include "docgen/HelpTopics.h"

#include "catalogue/Catalogue.h"
#include "text/CaseFolding.h"

#include <algorithm>
#include <array>

namespace korvane {
namespace {

// "Start up and Shutdown" gives "start-up-and-shutdown".
std::string fileStem(std::string_view title) {
    std::string stem;
    for (const char c : lowerCase(title)) {
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) {
            stem += c;
        } else if (!stem.empty() && stem.back() != '-') {
            stem += '-';
        }
    }
    return stem;
}

std::vector<int> childrenOf(int parent, bool categories) {
    std::vector<int> children;
    for (int id = 0; id < kItemCount; ++id) {
        const Tweak& tweak = *findTweak(id);
        if (tweak.treeParent == parent && tweak.isCategory() == categories) {
            children.push_back(id);
        }
    }
    return children;
}

void addCategory(std::vector<HelpTopic>& topics, int id, int parent) {
    const std::string title(findTweak(id)->treeRowText());
    const int index = static_cast<int>(topics.size());
    topics.push_back({.file = fileStem(title) + ".html",
                      .title = title,
                      .category = id,
                      .parent = parent,
                      .items = childrenOf(id, false)});
    for (const int child : childrenOf(id, true)) {
        addCategory(topics, child, index);
    }
}

void addGroupOutsideTree(std::vector<HelpTopic>& topics, const CatalogueGroup& group) {
    HelpTopic topic{.file = fileStem(group.name) + "-kmctl.html",
                    .title = std::string(group.name) + ": Not in the Tree",
                    .items = {},
                    .inTree = false};
    for (int id = 0; id < kItemCount; ++id) {
        if (group.owns(id) && findTweak(id)->treeParent == kNoTreeRow) {
            topic.items.push_back(id);
        }
    }
    if (!topic.items.empty()) {
        topics.push_back(topic);
    }
}

}  // namespace

std::vector<HelpTopic> helpTopics() {
    std::vector<HelpTopic> topics;
    for (const int id : childrenOf(kTreeRoot, true)) {
        addCategory(topics, id, -1);
    }
    topics.push_back({.file = "top-of-the-tree.html",
                      .title = "Tweaks Beside the Categories",
                      .items = childrenOf(kTreeRoot, false)});
    for (const CatalogueGroup& group : catalogueGroups()) {
        addGroupOutsideTree(topics, group);
    }
    return topics;
}

const HelpTopic& helpTopicOf(int id) {
    static const std::vector<HelpTopic> topics = helpTopics();
    static const auto homes = [] {
        std::array<std::size_t, kItemCount> made{};
        for (std::size_t i = 0; i < topics.size(); ++i) {
            if (topics[i].category >= 0) {
                made[static_cast<std::size_t>(topics[i].category)] = i;
            }
            for (const int item : topics[i].items) {
                made[static_cast<std::size_t>(item)] = i;
            }
        }
        return made;
    }();
    return topics[homes[static_cast<std::size_t>(id)]];
}

std::string helpAddress(int id) { return helpTopicOf(id).file + "#item" + std::to_string(id); }

}  // namespace korvane
