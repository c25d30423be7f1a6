// How long two copies of Korvane Manager take to show their windows, started in
// turn: start_up PAIRS PROGRAM OTHER. Prints both medians and the median of the
// ratios of the pairs, OTHER to PROGRAM.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <windows.h>

namespace {

constexpr DWORD kLongestStart = 30000;  // milliseconds

double now() {
    LARGE_INTEGER count{};
    LARGE_INTEGER frequency{};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// The main window is visible, and has answered a message: all that its start has to do is done.
bool isShown(DWORD processId, HWND& window) {
    window = FindWindowA(nullptr, "Korvane Manager");
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return window != nullptr && owner == processId && IsWindowVisible(window);
}

// Milliseconds; negative when the program failed.
double timeStart(const std::string& program) {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    std::string commandLine = '"' + program + '"';
    const double start = now();
    if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        return -1;
    }
    HWND window = nullptr;
    while (!isShown(process.dwProcessId, window) && now() - start < kLongestStart) {
        Sleep(1);
    }
    SendMessageA(window, WM_NULL, 0, 0);
    UpdateWindow(window);
    const double taken = now() - start;
    PostMessageA(window, WM_CLOSE, 0, 0);
    if (WaitForSingleObject(process.hProcess, kLongestStart) != WAIT_OBJECT_0) {
        TerminateProcess(process.hProcess, 1);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return taken < kLongestStart ? taken : -1;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int count, char** arguments) {
    const int pairs = count == 4 ? std::atoi(arguments[1]) : 0;
    if (pairs < 1) {
        std::fputs("usage: start_up PAIRS PROGRAM OTHER\n", stderr);
        return 2;
    }
    std::vector<double> first;
    std::vector<double> second;
    std::vector<double> ratios;
    for (int pair = -1; pair < pairs; ++pair) {  // the first one only warms up
        // Each comes first in every other pair.
        const bool swapped = pair % 2 != 0;
        const double a = timeStart(arguments[swapped ? 3 : 2]);
        const double b = timeStart(arguments[swapped ? 2 : 3]);
        if (a < 0 || b < 0) {
            std::fputs("a program did not show its window\n", stderr);
            return 1;
        }
        if (pair >= 0) {
            first.push_back(swapped ? b : a);
            second.push_back(swapped ? a : b);
            ratios.push_back(second.back() / first.back());
        }
    }
    std::printf("%.0f ms and %.0f ms; ratio %.3f (%.3f to %.3f)\n", median(first), median(second), median(ratios),
                *std::min_element(ratios.begin(), ratios.end()), *std::max_element(ratios.begin(), ratios.end()));
    return 0;
}
