// a00abc: writes the name of the implementation to a file.
#include <kor/a00.h>

#include "frame/banner.hpp"
#include "frame/files.hpp"

void a00abc(const char *outfile)
{
    for (const char *line : kor::kBanner) kor::x04bay(outfile, line);
}
