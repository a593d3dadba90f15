// Small operations on texts that the parsers of options share.
#pragma once

#include <kor.h>

namespace kor {

void x04bbz(char *s);                               // to upper case, by the locale's tables
void x04bcz(char *s);                               // to lower case
void x04caz(char *dst, const char *src, Integer n); // the first n characters, n >= 0; `dst` has room for n + 1

} // namespace kor
