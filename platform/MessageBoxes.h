// Message boxes with one OK button.
#pragma once

#include <string>

namespace korvane {

enum class MessageIcon { None, Stop };

struct MessageBoxRequest {
    std::string text;
    std::string caption;
    MessageIcon icon = MessageIcon::None;
    // The owner of the box: none, or the window that it disables.
    bool ownedByMainWindow = false;
    // The id of the text in the string table; 0 if it is not from there.
    int stringId = 0;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    // Returns when the user has closed the box.
    virtual void show(const MessageBoxRequest& request) = 0;
};

}  // namespace korvane
