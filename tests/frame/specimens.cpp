#include <kor/a00.h>
#include <kor/a02.h>
#include <kor/p01.h>
#include <kor/x02.h>
#include <kor/x03.h>
#include <kor/x04.h>
#include <kor/x05.h>

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

// The banners go to a file that nobody reads; the null device takes them in any working directory.
KOR_SPECIMEN_WITHOUT_RECORD(a00aac)
{
    Integer done = 0;
    call([&](KorError *) {
        a00aac();
        done = 1;
    });
    outputs(done);
}

KOR_SPECIMEN_WITHOUT_RECORD(a00abc)
{
    Integer done = 0;
    call([&](KorError *) {
        a00abc("/dev/null");
        done = 1;
    });
    outputs(done);
}

#define COMPLEX_ROUTINE(name, ...)                                                                                     \
    KOR_SPECIMEN_WITHOUT_RECORD(name)                                                                                  \
    {                                                                                                                  \
        decltype(name(__VA_ARGS__)) value{};                                                                           \
        call([&](KorError *) { value = name(__VA_ARGS__); });                                                          \
        outputs(value);                                                                                                \
    }
constexpr Complex kZ{1.375, -0.8125};
constexpr Complex kW{-0.625, 2.75};
COMPLEX_ROUTINE(a02bac, 1.5, -2.5)
COMPLEX_ROUTINE(a02bbc, kZ)
COMPLEX_ROUTINE(a02bcc, kZ)
COMPLEX_ROUTINE(a02cac, kZ, kW)
COMPLEX_ROUTINE(a02cbc, kZ, kW)
COMPLEX_ROUTINE(a02ccc, kZ, kW)
COMPLEX_ROUTINE(a02cdc, kZ, kW)
COMPLEX_ROUTINE(a02cec, kZ)
COMPLEX_ROUTINE(a02cfc, kZ)
COMPLEX_ROUTINE(a02cgc, kZ, kZ)
COMPLEX_ROUTINE(a02chc, kZ, kW)
COMPLEX_ROUTINE(a02dac, kZ)
COMPLEX_ROUTINE(a02dbc, kZ)
COMPLEX_ROUTINE(a02dcc, kZ)
COMPLEX_ROUTINE(a02ddc, kZ, 7)
COMPLEX_ROUTINE(a02dec, kZ, 1.25)
COMPLEX_ROUTINE(a02dfc, kZ, kW)
COMPLEX_ROUTINE(a02dgc, kZ)
COMPLEX_ROUTINE(a02dhc, kZ)
COMPLEX_ROUTINE(a02djc, kZ)
COMPLEX_ROUTINE(a02dkc, kZ)
COMPLEX_ROUTINE(a02dlc, kZ)
COMPLEX_ROUTINE(a02eic, kZ, 1.25)
COMPLEX_ROUTINE(a02ejc, kZ, 1.25)

KOR_SPECIMEN(x03aac)
{
    const double a[] = {1.0 / 3.0, 1e10, -2.5};
    const double b[] = {0.7, 1e-9, 11.0};
    double d1 = 99.0;
    double d2 = 99.0;
    call([&](KorError *fail) { x03aac(a, 3, b, 3, 3, 1, 1, 0.1, 0.0, &d1, &d2, 1, fail); });
    outputs(d1, d2);
}

// The clock goes on between two calls: the specimen shows only that it runs.
KOR_SPECIMEN_WITHOUT_RECORD(x05aac)
{
    Integer seconds = -1;
    call([&](KorError *) { seconds = x05aac(); });
    outputs(static_cast<Integer>(seconds >= 0));
}
