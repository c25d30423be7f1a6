// Replaces the C++ runtime's handler for exceptions that nobody caught. The runtime's own one prints the
// exception's type and text, and for that brings the name demangler and the printing functions into every program:
// more than 70 KB for a message that a program without a console cannot show.
// It is linked as an object of each program; inside a library the linker would prefer the runtime's.
#include <cstdlib>

namespace __gnu_cxx {

void __verbose_terminate_handler();

void __verbose_terminate_handler() {
    std::abort();
}

}  // namespace __gnu_cxx
