#include <vector>

#include <kor/c06.h>

#include "support/specimen.hpp"

namespace {

// 2 * 3 * 67 brings every kind of pass, the convolution for large primes with it.
constexpr Integer kMany = 402, kRows = 3, kSingle = 60;

std::vector<double> table(Integer n)
{
    std::vector<double> trig(2 * static_cast<std::size_t>(n));
    KorError quiet{};
    c06gzc(n, trig.data(), &quiet);
    return trig;
}

std::vector<double> data(Integer count)
{
    std::vector<double> x(static_cast<std::size_t>(count));
    for (Integer j = 0; j < count; ++j) x[static_cast<std::size_t>(j)] = (j * 7 % 11) - 4.5;
    return x;
}

} // namespace

#define SPECIMEN_IN_PLACE(name, ...)                                                                                   \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        std::vector<double> x = data(kSingle), y = data(kSingle);                                                      \
        call([&](KorError *fail) { name(__VA_ARGS__, fail); });                                                        \
        outputs(x.data(), x.size());                                                                                   \
        outputs(y.data(), y.size());                                                                                   \
    }

SPECIMEN_IN_PLACE(c06eac, kSingle, x.data())
SPECIMEN_IN_PLACE(c06ebc, kSingle, x.data())
SPECIMEN_IN_PLACE(c06ecc, kSingle, x.data(), y.data())
SPECIMEN_IN_PLACE(c06ekc, Kor_Convolution, kSingle, x.data(), y.data())
SPECIMEN_IN_PLACE(c06gbc, kSingle, x.data())
SPECIMEN_IN_PLACE(c06gcc, kSingle, y.data())
SPECIMEN_IN_PLACE(c06gqc, 3, 20, x.data())

#define SPECIMEN_OF_ROWS(name, row, ...)                                                                               \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        const std::vector<double> trig = table(kMany);                                                                 \
        std::vector<double> x = data(kRows * (row)), y = data(kRows * (row));                                          \
        call([&](KorError *fail) { name(__VA_ARGS__, trig.data(), fail); });                                           \
        outputs(x.data(), x.size());                                                                                   \
        outputs(y.data(), y.size());                                                                                   \
    }

SPECIMEN_OF_ROWS(c06fpc, kMany, kRows, kMany, x.data())
SPECIMEN_OF_ROWS(c06fqc, kMany, kRows, kMany, x.data())
SPECIMEN_OF_ROWS(c06frc, kMany, kRows, kMany, x.data(), y.data())
SPECIMEN_OF_ROWS(c06hac, kMany - 1, kRows, kMany, x.data())
SPECIMEN_OF_ROWS(c06hbc, kMany + 1, kRows, kMany, x.data())
SPECIMEN_OF_ROWS(c06hcc, kMany, Kor_ForwardTransform, kRows, kMany, x.data())
SPECIMEN_OF_ROWS(c06hdc, kMany, Kor_BackwardTransform, kRows, kMany, x.data())

KOR_SPECIMEN(c06fuc)
{
    const std::vector<double> trigm = table(71), trign = table(kMany);
    std::vector<double> x = data(71 * kMany), y = data(71 * kMany);
    call([&](KorError *fail) { c06fuc(71, kMany, x.data(), y.data(), trigm.data(), trign.data(), fail); });
    outputs(x.data(), x.size());
    outputs(y.data(), y.size());
}

KOR_SPECIMEN(c06gsc)
{
    const std::vector<double> x = data(60);
    std::vector<double> u(60, 99.0), v(60, 99.0);
    call([&](KorError *fail) { c06gsc(3, 20, x.data(), u.data(), v.data(), fail); });
    outputs(u.data(), u.size());
    outputs(v.data(), v.size());
}

KOR_SPECIMEN(c06gzc)
{
    std::vector<double> trig(2 * kMany, 99.0);
    call([&](KorError *fail) { c06gzc(kMany, trig.data(), fail); });
    outputs(trig.data(), trig.size());
}
