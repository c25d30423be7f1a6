// Message boxes with a single OK button.
#pragma once

#include <string>

namespace korvane {

enum class MessageIcon { None, Stop };

struct MessageBoxRequest {
    std::string text;
    std::string caption;
    MessageIcon icon = MessageIcon::None;
    // The window the box belongs to: none, or the window it stops from being used meanwhile.
    bool ownedByMainWindow = false;
    // The number of the text in the program's string table; 0 when it does not come from there.
    int stringId = 0;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    // Returns when the user has closed the box.
    virtual void show(const MessageBoxRequest& request) = 0;
};

}  // namespace korvane
