// Replaces the C++ runtime's handler for uncaught exceptions. That one prints the
// type and text of the exception and therefore links the demangler and stdio into
// every program: more than 70 KB for a message that a program without a console
// cannot show. It is linked as an object file, because from a library the linker
// would take the runtime's.
#include <cstdlib>

namespace __gnu_cxx {

void __verbose_terminate_handler();

void __verbose_terminate_handler() {
    std::abort();
}

}  // namespace __gnu_cxx
