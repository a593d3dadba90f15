#include <kor/p01.h>
#include <kor/x02.h>
#include <kor/x04.h>

#include "support/specimen.hpp"

// The reporter itself: what the sweep of records expects of a routine is for its own tests to say.
KOR_SPECIMEN_WITHOUT_RECORD(p01acc)
{
    KorError fail{};
    call([&](KorError *) { p01acc(nullptr, NE_NOERROR, "p01acc", &fail); });
    outputs(fail.message, sizeof fail.message);
}

#define MACHINE_CONSTANT(name)                                                                                         \
    KOR_SPECIMEN_WITHOUT_RECORD(name)                                                                                  \
    {                                                                                                                  \
        double value = -1.0;                                                                                           \
        call([&](KorError *) { value = name(); });                                                                     \
        outputs(value);                                                                                                \
    }
MACHINE_CONSTANT(x02ahc)
MACHINE_CONSTANT(x02ajc)
MACHINE_CONSTANT(x02akc)
MACHINE_CONSTANT(x02alc)
MACHINE_CONSTANT(x02amc)
MACHINE_CONSTANT(x02anc)
MACHINE_CONSTANT(x02dac)

KOR_SPECIMEN_WITHOUT_RECORD(x04bbc)
{
    void *block = nullptr;
    call([&](KorError *) { block = x04bbc(8); });
    outputs(static_cast<Integer>(block != nullptr));
    x04bdc(&block);
}

KOR_SPECIMEN_WITHOUT_RECORD(x04bcc)
{
    void *block = nullptr;
    call([&](KorError *) { block = x04bcc(nullptr, 8); });
    outputs(static_cast<Integer>(block != nullptr));
    x04bdc(&block);
}

KOR_SPECIMEN_WITHOUT_RECORD(x04bdc)
{
    void *block = x04bbc(8);
    call([&](KorError *) { x04bdc(&block); });
    outputs(static_cast<Integer>(block == nullptr));
    x04bdc(&block);
}

KOR_SPECIMEN_WITHOUT_RECORD(x04mac)
{
    Integer value = 0;
    call([&](KorError *) { value = x04mac("Kor_Descending"); });
    outputs(value);
}

KOR_SPECIMEN_WITHOUT_RECORD(x04mbc)
{
    Integer code = 0;
    call([&](KorError *) { code = x04mbc("NE_INFINITE"); });
    outputs(code);
}
