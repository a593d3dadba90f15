// x04bcc: changes the size of a block.
#include <kor/x04.h>

#include <cstdlib>

void *x04bcc(void *p, size_t size) { return std::realloc(p, size); }
