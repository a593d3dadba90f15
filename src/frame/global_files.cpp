// The two file names that programs of the verification support set.
#include <kor/x04.h>

char *global_datafile = nullptr;
char *global_resfile = nullptr;
