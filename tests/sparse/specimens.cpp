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

#define SOLUTION                                                                                                       \
    double x[kOrder] = {}, rnorm = -9.0, anorm = 0.0;                                                                  \
    Integer itn = -9
const double kRight[kOrder] = {1.0, 2.0, 3.0, 4.0};

KOR_SPECIMEN(f11dec)
{
    const Stored s{kOrder, kGeneral};
    SOLUTION;
    call([&](KorError *fail) {
        f11dec(Kor_SparseNsym_CGS, Kor_SparseNsym_SSORPrec, kOrder, s.nnz, s.a, s.irow, s.icol, 1.1, kRight, 2, 1e-10,
               50, x, &rnorm, &itn, nullptr, fail);
    });
    outputs(x, rnorm, itn, anorm);
}

KOR_SPECIMEN(f11dcc)
{
    Stored s{kOrder, kGeneral};
    SOLUTION;
    Integer ipivp[kOrder], ipivq[kOrder], istr[kOrder + 1], idiag[kOrder], nnzc, npivm;
    KorError quiet{};
    f11dac(kOrder, s.nnz, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, Kor_SparseNsym_CompletePiv, Kor_SparseNsym_UnModFact,
           ipivp, ipivq, istr, idiag, &nnzc, &npivm, &quiet);
    call([&](KorError *fail) {
        f11dcc(Kor_SparseNsym_RGMRES, kOrder, s.nnz, s.a, s.la, s.irow, s.icol, ipivp, ipivq, istr, idiag, kRight, 3,
               1e-10, 50, x, &rnorm, &itn, nullptr, fail);
    });
    outputs(x, rnorm, itn, anorm);
}

KOR_SPECIMEN(f11jec)
{
    const Stored s{kOrder, kLower};
    SOLUTION;
    call([&](KorError *fail) {
        f11jec(Kor_SparseSym_Lanczos, Kor_SparseSym_JacPrec, kOrder, s.nnz, s.a, s.la, s.irow, s.icol, 0.0, kRight,
               1e-10, 50, x, &rnorm, &itn, &anorm, nullptr, fail);
    });
    outputs(x, rnorm, itn, anorm);
}

KOR_SPECIMEN(f11jcc)
{
    Stored s{kOrder, kLower};
    SOLUTION;
    Integer ipiv[kOrder], istr[kOrder + 1], nnzc, npivm;
    KorError quiet{};
    f11jac(kOrder, s.nnz, &s.a, &s.la, &s.irow, &s.icol, 0, 0.0, Kor_SparseSym_UnModFact, 0.0, Kor_SparseSym_MarkPiv,
           ipiv, istr, &nnzc, &npivm, &quiet);
    call([&](KorError *fail) {
        f11jcc(Kor_SparseSym_CG, kOrder, s.nnz, s.a, s.la, s.irow, s.icol, ipiv, istr, kRight, 1e-10, 50, x, &rnorm,
               &itn, &anorm, nullptr, fail);
    });
    outputs(x, rnorm, itn, anorm);
}

namespace {

void begin(KorSparseSymState *state, KorError *fail)
{
    f11gac(Kor_SparseSym_Lanczos, Kor_SparseSym_NoPrec, Kor_SparseSym_Bisect, Kor_SparseSym_OneNorm,
           Kor_SparseSym_UnWeighted, Kor_SparseSym_TermLanczosCG, kOrder, 1e-10, 50, 0.0, 0.0, 0.0, 10, state, fail);
}
void end(KorSparseSymState *state)
{
    KorError quiet{};
    Integer stop = 6;
    f11gbc(&stop, nullptr, nullptr, nullptr, state, &quiet);
}

} // namespace

KOR_SPECIMEN(f11gac)
{
    KorSparseSymState state{};
    call([&](KorError *fail) { begin(&state, fail); });
    outputs(state.stamp, state.itn);
    end(&state);
}

KOR_SPECIMEN(f11gbc)
{
    KorSparseSymState state{};
    KorError quiet{};
    begin(&state, &quiet);
    double u[kOrder] = {}, v[kOrder] = {1.0, 2.0, 3.0, 4.0};
    Integer irevcm = 0;
    call([&](KorError *fail) { f11gbc(&irevcm, u, v, nullptr, &state, fail); });
    outputs(u, irevcm);
    end(&state);
}

KOR_SPECIMEN(f11gcc)
{
    KorSparseSymState state{};
    KorError quiet{};
    begin(&state, &quiet);
    Integer itn = -9, sigma_itn = -9;
    double lhs = -9.0, rhs = -9.0, anorm = -9.0, sigmax = -9.0, sigma_err = -9.0;
    call([&](KorError *fail) { f11gcc(&itn, &lhs, &rhs, &anorm, &sigmax, &sigma_itn, &sigma_err, &state, fail); });
    outputs(itn, lhs, rhs, anorm, sigmax, sigma_itn, sigma_err);
    end(&state);
}
