// x04bax: opens a file for reading, or ends the process.
#include <cstdlib>

#include "frame/files.hpp"

namespace kor {

std::FILE *x04bax(const char *name)
{
    if (name == nullptr) return stdin;
    std::FILE *file = std::fopen(name, "r");
    if (file == nullptr) {
        std::fprintf(stderr, "Unable To Open Input File: %s", name);
        std::exit(EXIT_FAILURE);
    }
    return file;
}

} // namespace kor
