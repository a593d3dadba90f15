// Plain files of the support programs, and the trace of the optimisers. Unlike sinks, x04bax and x04bay end the process
// when they fail.
#pragma once

#include <cstdio>

#include <kor.h>

namespace kor {

// Appends `text` to "KorDebug_file" in the working directory; silent when that cannot be had. `text` is a printf format
// without conversions: a percent sign in it is doubled by the caller.
void x04aaz(const char *text);

std::FILE *x04bax(const char *name); // opens for reading; a null name is the standard input stream
Integer x04bau(std::FILE *file);     // closes, unless it is the standard input stream; returns 0

// Appends `text` to the file, opened and closed for it; a null name is the standard output stream.
void x04bay(const char *name, const char *text);

} // namespace kor
