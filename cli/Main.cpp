// kmctl: Korvane Manager for scripts and for .reg files.
#include "cli/Problem.h"
#include "cli/Run.h"

#include <cstdio>
#include <exception>
#include <vector>

#ifdef _WIN32
// The C runtime would otherwise replace "*" and "?" in arguments by the names of files: they may be a tweak's text.
extern "C" int _CRT_glob;
int _CRT_glob = 0;
#endif

namespace {

bool print(std::FILE* stream, const std::string& text) {
    return std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int kFailed = static_cast<int>(korvane::ExitStatus::Failed);
    try {
        const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
        std::string out;
        std::string err;
        const int status = korvane::run(arguments, out, err);
        print(stderr, err);
        if (!print(stdout, out)) {
            print(stderr, "kmctl: standard output cannot be written\n");
            return kFailed;
        }
        return status;
    } catch (const std::exception&) {  // out of memory: nothing else is thrown
        print(stderr, "kmctl: there is not enough memory\n");
        return kFailed;
    }
}
