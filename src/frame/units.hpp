// Output of the kernels that return an integer status. All of it goes to the standard output stream, whatever the unit.
#pragma once

#include <kor.h>

namespace kor {

void x04aaf_f(Integer i, Integer *nerr); // i = 0: the error unit, always 6; it can be read and not set
void x04abf_f(Integer i, Integer *nadv); // the advisory unit: i = 0 reads it, i = 1 sets it
// One line: `length` characters of `rec` without their trailing blanks. A negative unit prints nothing.
void x04baf_f(Integer nout, const char *rec, Integer length);
void x04bat(); // nothing

} // namespace kor
