// x04bdc: frees a block and clears the pointer to it.
#include <kor/x04.h>

#include <cstdlib>

void x04bdc(void **pp)
{
    std::free(*pp);
    *pp = nullptr;
}
