// x04bbc: allocates memory.
#include <kor/x04.h>

#include <cstdlib>

void *x04bbc(size_t size) { return std::malloc(size); }
