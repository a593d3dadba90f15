// f06aaz_f: tells of an illegal argument on behalf of the kernels that return an integer status.
#include <cstdio>

#include "frame/kernel_report.hpp"
#include "linalg/arguments.hpp"

namespace kor::linalg {

void f06aaz_f(const char *routine, Integer position)
{
    constexpr Integer kHardAndLoud = 0; // says that execution ends, and returns
    char text[128];
    std::snprintf(text, sizeof text, " ** On entry to %13s parameter number %2ld had an illegal value", routine,
                  static_cast<long>(position));
    // The status that a kernel of the standard package returns for it: the position, negative.
    p01acf_f(kHardAndLoud, -position, routine, "INFO", 1, text);
}

} // namespace kor::linalg
