// Fuzz target: a file that does not load leaves no trace; one that loads is saved as it was; and after changes, which
// the end of the input chooses, an import of the saved file gives the registry as it is then.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "regfile/RegFile.h"

namespace {

using namespace korvane;

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

// Numbers from the end of the input, where a file has its least interesting bytes; 0 when none are left.
class Choices {
public:
    explicit Choices(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}
    bool left() const { return !bytes_.empty(); }
    std::size_t next(std::size_t below) {
        if (bytes_.empty() || below == 0) {
            return 0;
        }
        const std::size_t number = bytes_.back();
        bytes_ = bytes_.first(bytes_.size() - 1);
        return number % below;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

class Changer {
public:
    Changer(MemoryRegistry& registry, Choices choices) : registry_(registry), choices_(choices) {}

    void run() {
        for (int i = 0; i < 6 && choices_.left(); ++i) {
            RegistryHandle key;
            if (registry_.connect(static_cast<Root>(choices_.next(4)), key) == Status::Success) {
                change(descend(std::move(key)));
            }
        }
    }

private:
    RegistryHandle descend(RegistryHandle key) {
        for (std::size_t levels = choices_.next(5); levels > 0; --levels) {
            RegistryHandle below;
            const std::string name = pick(key, &Registry::enumerateKey);
            if (registry_.openKey(key, name, below) != Status::Success) {
                break;
            }
            key = std::move(below);
        }
        return key;
    }

    template <class Enumerate>
    std::string pick(const RegistryHandle& key, Enumerate enumerate) {
        std::string name;
        for (auto index = static_cast<std::uint32_t>(choices_.next(4));; --index) {
            if ((registry_.*enumerate)(key, index, name) == Status::Success || index == 0) {
                return name;
            }
        }
    }

    void change(const RegistryHandle& key) {
        constexpr std::array<const char*, 6> kNames{"", "v", "V", "A", "a\\B", "A\\b\\C"};
        constexpr std::array<std::string_view, 4> kData{"", "text\xE9", "\xC3\xA9\r\n\"", "1234"};
        const std::string_view data = kData[choices_.next(kData.size())];
        const auto bytes = std::as_bytes(std::span(data));
        const std::string name = kNames[choices_.next(kNames.size())];
        const auto type = static_cast<ValueType>(choices_.next(5));
        RegistryHandle made;
        switch (choices_.next(6)) {
            case 0: ignoreFailure(registry_.setValue(key, name, type, bytes)); break;
            case 1: ignoreFailure(registry_.setValue(key, pick(key, &Registry::enumerateValue), type, bytes)); break;
            case 2: ignoreFailure(registry_.deleteValue(key, "", pick(key, &Registry::enumerateValue))); break;
            case 3: ignoreFailure(registry_.deleteTree(key, pick(key, &Registry::enumerateKey))); break;
            case 4: ignoreFailure(registry_.deleteKey(key, pick(key, &Registry::enumerateKey))); break;
            default:
                if (registry_.createKey(key, name, made) == Status::Success) {
                    ignoreFailure(registry_.setValue(made, "n", type, bytes));
                }
        }
    }

    MemoryRegistry& registry_;
    Choices choices_;
};

// Only values in an odd form of text are beyond the older form.
std::optional<std::string> save(const MemoryRegistry& registry) {
    std::string error;
    std::optional<std::string> saved = saveRegFile(registry, &error);
    require(saved.has_value() || error.starts_with("the file cannot hold the "));
    return saved;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string file(reinterpret_cast<const char*>(data), size);
    MemoryRegistry first;
    if (loadRegFile(file, first)) {
        require(dumpRegistry(first).empty() && first.file() == nullptr);
        return 0;
    }
    require(save(first) == file);
    Changer(first, Choices({data, size})).run();
    require(first.openHandles() == 0);
    if (const std::optional<std::string> saved = save(first)) {
        MemoryRegistry second;
        require(!loadRegFile(*saved, second));
        require(dumpRegistry(second) == dumpRegistry(first));
        require(save(second) == saved);
    }
    return 0;
}
