/* A program that is running loads the library, as interpreters do. */
#include <dlfcn.h>
#include <stdio.h>

int main(int argc, char **argv)
{
    void *const library = argc > 1 ? dlopen(argv[1], RTLD_NOW) : NULL;
    if (library == NULL || dlsym(library, "c05adc") == NULL) {
        puts(dlerror());
        return 1;
    }
    return 0;
}
