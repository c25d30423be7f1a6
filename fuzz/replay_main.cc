// Runs a fuzz target without libFuzzer: every seed file first, then a fixed series of mutations of the seeds.
// The series depends on nothing but the seeds and --seed, so a failure comes back when the same line is run again.
// The input that made the program die, or hang, is kept in the file "crash-" + the program's name in the current
// folder.
//
//     fuzz_NAME [--runs=20000] [--seconds=5] [--seed=1] FILE...
//
// It stops after that many mutations or seconds, whichever comes first, and says how many it ran.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// The sanitizers ask for their options under these names. A fault they find shall end in SIGABRT, which is caught here.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
    return "abort_on_error=1";
}
extern "C" const char* __ubsan_default_options();
extern "C" const char* __ubsan_default_options() {
    return "abort_on_error=1:print_stacktrace=1";
}

namespace {

using Input = std::vector<std::uint8_t>;

constexpr std::size_t kLongestInput = 1 << 16;
constexpr unsigned kHangSeconds = 10;

const Input* currentInput = nullptr;
std::string crashFile;

// Both run in a signal handler: system calls only, nothing that allocates.
void say(std::string_view text) {
    const ssize_t written = write(STDERR_FILENO, text.data(), text.size());
    (void)written;
}

void keepCurrentInput() {
    const int file = open(crashFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file < 0) {
        return;
    }
    const ssize_t written = write(file, currentInput->data(), currentInput->size());
    (void)written;
    close(file);
    say("The input is kept in ");
    say(crashFile);
    say("\n");
}

void onDeadlySignal(int signal) {
    if (signal == SIGALRM) {
        say("The target hangs: one input takes more than ten seconds.\n");
    }
    if (currentInput) {
        keepCurrentInput();
    }
    _exit(1);
}

void runOne(const Input& input) {
    currentInput = &input;
    alarm(kHangSeconds);
    LLVMFuzzerTestOneInput(input.data(), input.size());
    alarm(0);
    currentInput = nullptr;
}

bool readFile(const char* path, Input& content) {
    std::FILE* file = std::fopen(path, "rb");
    if (!file) {
        return false;
    }
    std::uint8_t block[4096];
    for (std::size_t got = 0; (got = std::fread(block, 1, sizeof block, file)) > 0;) {
        content.insert(content.end(), block, block + got);
    }
    const bool ok = std::ferror(file) == 0;
    std::fclose(file);
    return ok;
}

class Mutator {
public:
    Mutator(const std::vector<Input>& seeds, std::uint32_t seed) : seeds_(seeds), random_(seed) {}

    Input next() {
        Input input = seeds_[below(seeds_.size())];
        for (std::size_t steps = 1 + below(6); steps > 0; --steps) {
            mutate(input);
        }
        input.resize(std::min(input.size(), kLongestInput));
        return input;
    }

private:
    // The standard distributions differ between libraries; the remainder is the same everywhere.
    std::size_t below(std::size_t bound) { return bound == 0 ? 0 : random_() % bound; }

    // Bytes that parsers of text treat specially, next to arbitrary ones.
    std::uint8_t byte() {
        constexpr std::string_view kSpecial{"\0\r\n\t \\\"=[];:,@%-09aF\x7f\x80\xff", 24};
        return static_cast<std::uint8_t>(below(2) == 0 ? static_cast<std::size_t>(kSpecial[below(kSpecial.size())])
                                                       : below(256));
    }

    void mutate(Input& input) {
        const std::size_t at = below(input.size() + 1);
        const auto here = input.begin() + static_cast<std::ptrdiff_t>(at);
        const std::size_t length = std::min(input.size() - at, 1 + below(64));
        switch (below(7)) {
        case 0:  // one bit
            if (at < input.size()) {
                input[at] = static_cast<std::uint8_t>(input[at] ^ (1U << below(8)));
            }
            break;
        case 1:  // one byte
            if (at < input.size()) {
                input[at] = byte();
            }
            break;
        case 2:  // a few bytes more
            input.insert(here, 1 + below(8), byte());
            break;
        case 3:  // a piece less
            input.erase(here, here + static_cast<std::ptrdiff_t>(length));
            break;
        case 4: {  // a piece twice, elsewhere
            const Input piece(here, here + static_cast<std::ptrdiff_t>(length));
            const auto target = input.begin() + static_cast<std::ptrdiff_t>(below(input.size() + 1));
            input.insert(target, piece.begin(), piece.end());
            break;
        }
        case 5:  // cut off
            input.resize(at);
            break;
        default: {  // continued with the end of another seed
            const Input& other = seeds_[below(seeds_.size())];
            const auto rest = other.begin() + static_cast<std::ptrdiff_t>(below(other.size() + 1));
            input.resize(at);
            input.insert(input.end(), rest, other.end());
            break;
        }
        }
    }

    const std::vector<Input>& seeds_;
    std::mt19937 random_;
};

struct Options {
    std::uint32_t runs = 20000;
    std::uint32_t seconds = 5;
    std::uint32_t seed = 1;
    std::vector<const char*> files;
};

bool takeNumber(std::string_view argument, std::string_view name, std::uint32_t& number) {
    if (!argument.starts_with(name)) {
        return false;
    }
    const char* const end = argument.data() + argument.size();
    const auto [stop, error] = std::from_chars(argument.data() + name.size(), end, number);
    return error == std::errc{} && stop == end;
}

bool parse(int count, char** arguments, Options& options) {
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (!argument.starts_with("--")) {
            options.files.push_back(arguments[i]);
        } else if (!takeNumber(argument, "--runs=", options.runs) &&
                   !takeNumber(argument, "--seconds=", options.seconds) &&
                   !takeNumber(argument, "--seed=", options.seed)) {
            std::fprintf(stderr, "Unknown argument: %s\n", arguments[i]);
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    Options options;
    if (!parse(count, arguments, options)) {
        return 2;
    }
    const std::string_view program = arguments[0];
    crashFile = "crash-" + std::string(program.substr(program.rfind('/') + 1));
    for (const int signal : {SIGABRT, SIGALRM, SIGILL}) {
        std::signal(signal, onDeadlySignal);
    }

    std::vector<Input> seeds;
    for (const char* path : options.files) {
        if (!readFile(path, seeds.emplace_back())) {
            std::fprintf(stderr, "Cannot read %s\n", path);
            return 2;
        }
        runOne(seeds.back());
    }
    const std::size_t seedFiles = seeds.size();
    seeds.emplace_back();  // the empty input, so that a target without seeds is exercised as well
    runOne(seeds.back());

    Mutator mutator(seeds, options.seed);
    const std::time_t end = std::time(nullptr) + static_cast<std::time_t>(options.seconds);
    std::uint32_t done = 0;
    for (; done < options.runs && std::time(nullptr) < end; ++done) {
        runOne(mutator.next());
    }
    std::printf("%zu seed files and %lu mutations ran.\n", seedFiles, static_cast<unsigned long>(done));
    return 0;
}
