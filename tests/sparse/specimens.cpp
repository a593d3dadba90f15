#include <kor/f11.h>

#include "sparse/matrices.hpp"
#include "support/specimen.hpp"

namespace {

using kor::testing::Elements;
using kor::testing::Stored;

// Enough of a matrix to have fill, so that the storage of a factor must grow.
const Elements kLower = {{{1, 1}, 9.0}, {{2, 1}, 1.0}, {{2, 2}, 8.0}, {{3, 1}, 2.0},
                         {{3, 3}, 7.0}, {{4, 1}, 3.0}, {{4, 4}, 8.0}};
const Elements kGeneral = {{{1, 1}, 9.0}, {{1, 3}, 2.0}, {{1, 4}, 1.0}, {{2, 1}, 1.0}, {{2, 2}, 8.0},
                           {{3, 1}, 2.0}, {{3, 3}, 7.0}, {{4, 1}, 3.0}, {{4, 4}, 8.0}};
constexpr Integer kOrder = 4;

} // namespace

#define SORT_SPECIMEN(name, family)                                                                                    \
    KOR_SPECIMEN(name)                                                                                                 \
    {                                                                                                                  \
        Integer nnz = 4, irow[] = {2, 1, 2, 2}, icol[] = {2, 1, 1, 2}, istr[3] = {};                                   \
        double a[] = {5.0, 4.0, -1.0, 2.0};                                                                            \
        call([&](KorError *fail) {                                                                                     \
            name(2, &nnz, a, irow, icol, Kor_##family##_SumDups, Kor_##family##_RemoveZeros, istr, fail);              \
        });                                                                                                            \
        outputs(nnz, irow, icol, istr, a);                                                                             \
    }
SORT_SPECIMEN(f11zac, SparseNsym)
SORT_SPECIMEN(f11zbc, SparseSym)

KOR_SPECIMEN(f11xec)
{
    const Stored s{kOrder, kLower};
    const double x[kOrder] = {1.0, 2.0, 3.0, 4.0};
    double y[kOrder] = {99.0, 99.0, 99.0, 99.0};
    call([&](KorError *fail) { f11xec(kOrder, s.nnz, s.a, s.irow, s.icol, Kor_SparseSym_Check, x, y, fail); });
    outputs(y);
}

KOR_SPECIMEN(f11dac)
{
    Stored s{kOrder, kGeneral};
    Integer ipivp[kOrder] = {1, 2, 3, 4}, ipivq[kOrder] = {1, 2, 3, 4}, istr[kOrder + 1] = {}, idiag[kOrder] = {},
            nnzc = -9, npivm = -9;
    call([&](KorError *fail) {
        f11dac(kOrder, s.nnz, &s.a, &s.la, &s.irow, &s.icol, -1, 0.0, Kor_SparseNsym_UserPiv, Kor_SparseNsym_UnModFact,
               ipivp, ipivq, istr, idiag, &nnzc, &npivm, fail);
    });
    outputs(s.la, istr, idiag, nnzc, npivm);
    outputs(s.a, static_cast<std::size_t>(s.nnz));
}

KOR_SPECIMEN(f11jac)
{
    Stored s{kOrder, kLower};
    Integer ipiv[kOrder] = {1, 2, 3, 4}, istr[kOrder + 1] = {}, nnzc = -9, npivm = -9;
    call([&](KorError *fail) {
        f11jac(kOrder, s.nnz, &s.a, &s.la, &s.irow, &s.icol, -1, 0.0, Kor_SparseSym_UnModFact, 0.0,
               Kor_SparseSym_UserPiv, ipiv, istr, &nnzc, &npivm, fail);
    });
    outputs(s.la, istr, nnzc, npivm);
    outputs(s.a, static_cast<std::size_t>(s.nnz));
}

KOR_SPECIMEN(f11jbc)
{
    Stored s{kOrder, kLower};
    Integer ipiv[kOrder], istr[kOrder + 1], nnzc, npivm;
    KorError quiet{};
    f11jac(kOrder, s.nnz, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, Kor_SparseSym_UnModFact, 0.0, Kor_SparseSym_NoPiv,
           ipiv, istr, &nnzc, &npivm, &quiet);
    const double y[kOrder] = {1.0, 2.0, 3.0, 4.0};
    double x[kOrder] = {99.0, 99.0, 99.0, 99.0};
    call([&](KorError *fail) { f11jbc(kOrder, s.a, s.la, s.irow, s.icol, ipiv, istr, y, x, fail); });
    outputs(x);
}
