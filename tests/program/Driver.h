// Drives the finished program from outside, as a user's hands and eyes: starts
// it, selects rows, sets controls, presses "Apply Changes", reads alerts. It
// knows the program only by its windows, the registry and the date file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <windows.h>

namespace korvane::program {

struct TreeRow {
    HWND tree;
    LPARAM handle;
    std::string text;
    unsigned data;
    bool bold;
    int image;
    int depth;
};

// What stands at the end of an apply.
struct ApplyResult {
    bool finished = false;            // false: the program did not answer in time
    std::vector<std::string> alerts;  // their texts, all of them with the caption "A L E R T"
};

class Driver {
public:
    // Starts the program as it would run on that Windows ("winxp", "win2k", "nt40", "win98", "win7") and waits for
    // its window. Fails the test when there is none within twenty seconds.
    explicit Driver(const std::string& windowsVersion);
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    ~Driver();

    bool running() const { return main_ != nullptr; }
    HWND window() const { return main_; }
    // Closes the window; true when the program then ended by itself with exit status 0.
    bool close();

    std::vector<TreeRow> treeRows();
    bool anyRowSelected();
    void select(const TreeRow& row);
    // Selects an item that has no row of its own: the first row stands in for it.
    void selectItem(unsigned id);

    // Null when no page, or more than one, is visible.
    HWND visiblePage();
    int visiblePages();
    bool applyVisible();
    ApplyResult apply();

    // Controls of the visible page.
    std::string text(int id);
    void setText(int id, const std::string& text);
    LRESULT send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    std::string cell(int list, int row, int column);
    void selectListRow(int list, int row);

private:
    HWND control(int id);
    HWND findWindow(const char* caption);
    HWND tree();
    // The program's own memory: common controls read and write their structures there.
    std::string readRemote(const void* from, std::size_t size);
    void writeRemote(const void* data, std::size_t size);

    PROCESS_INFORMATION process_{};
    HWND main_ = nullptr;
    char* remote_ = nullptr;
};

// The program's folder, without a trailing backslash.
std::string programFolder();
std::optional<std::string> readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& text);
// The current UTC date as the date file has it.
std::string today();

}  // namespace korvane::program
