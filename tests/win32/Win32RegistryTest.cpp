// The behaviour tests over the live registry.
#include "platform/win32/Win32Registry.h"
#include "tests/platform/RegistryBehaviour.h"

namespace korvane {
namespace {

class LiveEnvironment {
public:
    Registry& registry() { return registry_; }
    const char* scratchPath() const { return "Software\\Korvane Registry Test"; }

private:
    Win32Registry registry_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Live, RegistryBehaviour, LiveEnvironment);

}  // namespace
}  // namespace korvane
