// x04mac: value of an enumerator by its name.
#include <kor/x04.h>

#include <cstring>

namespace {

constexpr Integer kUnknown = -5438;

struct Enumerator {
    const char *name;
    Integer value;
};

constexpr Enumerator kEnumerators[] = {
#define KOR_ENUMERATOR(name) {#name, name},
#include <kor/enumerators.def>
#undef KOR_ENUMERATOR
};

} // namespace

Integer x04mac(const char *name)
{
    for (const Enumerator &entry : kEnumerators)
        if (std::strcmp(entry.name, name) == 0) return entry.value;
    return kUnknown;
}
