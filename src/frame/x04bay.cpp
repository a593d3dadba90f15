// x04bay: appends a text to a file, or ends the process.
#include <cstdlib>

#include "frame/files.hpp"

namespace kor {

namespace {

[[noreturn]] void give_up(const char *format, const char *name)
{
    std::fprintf(stderr, format, name);
    std::exit(EXIT_FAILURE);
}

} // namespace

void x04bay(const char *name, const char *text)
{
    if (name == nullptr) {
        if (std::fputs(text, stdout) == EOF) give_up("Unable To Write to the stdout\n", "");
        return;
    }
    std::FILE *file = std::fopen(name, "a");
    if (file == nullptr) give_up("Unable To Open Output File: %s\n", name);
    if (std::fputs(text, file) == EOF) give_up("Unable To Write to the Output File: %s\n", name);
    if (std::fclose(file) != 0) give_up("Unable To Close the Output File: %s\n", name);
}

} // namespace kor
