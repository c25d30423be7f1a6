// The pages of the help for the catalogue, and the items on each: a page for every
// category of the tree, one for the tweaks without a category, and for each group
// one for the items that have no row in the tree.
#pragma once

#include <string>
#include <vector>

namespace korvane {

struct HelpTopic {
    std::string file;  // "command-processor.html"
    std::string title;
    int category = -1;       // the ItemId of the category; -1: none
    int parent = -1;         // index of the parent topic; -1: top level
    std::vector<int> items;  // the ItemIds described on the page, in order
    bool inTree = true;      // false: the items without a row in the tree
};

// In tree order, parents before children.
std::vector<HelpTopic> helpTopics();

// The topic that describes an ItemId.
const HelpTopic& helpTopicOf(int id);

// "command-processor.html#item11"
std::string helpAddress(int id);

}  // namespace korvane
