// x04aaz: the monitoring trace of the optimisers.
#include <cstdarg>

#include "frame/files.hpp"

namespace kor {

namespace {

// The text is a format, and by contract one without conversions; the detour says so to the compiler.
void print_format(std::FILE *file, const char *format, ...)
{
    std::va_list none;
    va_start(none, format);
    std::vfprintf(file, format, none);
    va_end(none);
}

} // namespace

void x04aaz(const char *text)
{
    std::FILE *file = std::fopen("KorDebug_file", "a");
    if (file == nullptr) return;
    print_format(file, text);
    std::fclose(file);
}

} // namespace kor
