// Which pages the help has for the catalogue, and what stands on each: one for
// every category of the tree, one for the tweaks beside the categories, and for
// each group one with the records that have no row in the tree.
#pragma once

#include <string>
#include <vector>

namespace korvane {

struct HelpTopic {
    std::string file;  // "command-processor.html"
    std::string title;
    int category = -1;       // the ItemId of the category; -1 when the page is of none
    int parent = -1;         // index of the topic above; -1: at the top
    std::vector<int> items;  // the ItemIds described below the category, in their order
    bool inTree = true;      // false: the records without a row in the tree
};

// In the order of the tree, parents before their children.
std::vector<HelpTopic> helpTopics();

// The topic that describes an ItemId.
const HelpTopic& helpTopicOf(int id);

// "command-processor.html#item11"
std::string helpAddress(int id);

}  // namespace korvane
