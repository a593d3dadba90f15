// a00aac: writes the name of the implementation to the standard output stream.
#include <kor/a00.h>

#include <cstdio>

#include "frame/banner.hpp"

void a00aac(void)
{
    for (const char *line : kor::kBanner) std::fputs(line, stdout);
}
