// f11gac: sets up the reverse communication for symmetric systems.
#include <kor/f11.h>

#include <algorithm>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "sparse/symmetric_driver.hpp"
#include "sparse/symmetric_state.hpp"

void f11gac(Integer method, Integer precon, Integer sigcmp, Integer norm, Integer weight, Integer iterm, Integer n,
            double tol, Integer maxitn, double anorm, double sigmax, double sigtol, Integer maxits,
            KorSparseSymState *state, KorError *fail)
{
    using namespace kor::sparse;
    const kor::Report report{"f11gac", fail};
    // The place of the offending argument goes to the record, negative.
    const auto bad = [&](Integer place, const char *name) {
        report.error<NE_BAD_PARAM>(name);
        report.set_errnum(-place);
    };
    if (!is_symmetric_method(method)) return bad(1, "method");
    if (precon != Kor_SparseSym_Prec && precon != Kor_SparseSym_NoPrec) return bad(2, "precon");
    const bool bisects = sigcmp == Kor_SparseSym_Bisect;
    if (!bisects && sigcmp != Kor_SparseSym_NoBisect) return bad(3, "sigcmp");
    if (norm != Kor_SparseSym_OneNorm && norm != Kor_SparseSym_TwoNorm && norm != Kor_SparseSym_InfNorm)
        return bad(4, "norm");
    if (weight != Kor_SparseSym_Weighted && weight != Kor_SparseSym_UnWeighted) return bad(5, "weight");
    const bool transformed = iterm == Kor_SparseSym_TermLanczos;
    if (!transformed && iterm != Kor_SparseSym_TermLanczosCG) return bad(6, "iterm");
    if (transformed && method == Kor_SparseSym_CG) {
        report.error<NE_ENUM_ENUM_ARG_CONS>("method", "Kor_SparseSym_CG", "iterm", "Kor_SparseSym_TermLanczos",
                                            "iterm = Kor_SparseSym_TermLanczosCG if method = Kor_SparseSym_CG");
        return report.set_errnum(-6);
    }
    if (n < 1) {
        report.error<NE_INT_ARG_LT>("n", "1", "n", n);
        return report.set_errnum(-7);
    }
    if (!(tol < 1.0)) {
        report.error<NE_REAL_ARG_GE>("tol", "1.0", "tol", tol);
        return report.set_errnum(-8);
    }
    if (maxitn < 1) {
        report.error<NE_INT_ARG_LT>("maxitn", "1", "maxitn", maxitn);
        return report.set_errnum(-9);
    }
    if (!(anorm >= 0.0)) {
        report.error<NE_REAL_ARG_LT>("anorm", "0.0", "anorm", anorm);
        return report.set_errnum(-10);
    }
    if (!(sigmax >= 0.0)) {
        report.error<NE_REAL_ARG_LT>("sigmax", "0.0", "sigmax", sigmax);
        return report.set_errnum(-11);
    }
    if (transformed && !bisects && sigmax == 0.0) {
        report.error<NE_REAL_ENUM_ARG_CONS>(
            "sigmax", sigmax, "sigcmp", "Kor_SparseSym_NoBisect",
            "sigmax > 0.0 or sigcmp = Kor_SparseSym_Bisect if iterm = Kor_SparseSym_TermLanczos");
        return report.set_errnum(-11);
    }
    if (bisects && !(sigtol < 1.0)) {
        report.error<NE_REAL_ARG_GE>("sigtol", "1.0", "sigtol", sigtol);
        return report.set_errnum(-12);
    }
    if (bisects && maxits < 1) {
        report.error<NE_INT_ARG_LT>("maxits", "1", "maxits", maxits);
        return report.set_errnum(-13);
    }

    constexpr double kUsualSigtol = 0.01;
    const SymmetricRules rules{.method = method == Kor_SparseSym_CG ? SymmetricMethod::conjugate_gradient
                                                                    : SymmetricMethod::lanczos,
                               .n = n,
                               .preconditioned = precon == Kor_SparseSym_Prec,
                               .tol = tol,
                               .limit = maxitn,
                               .norm = norm == Kor_SparseSym_OneNorm   ? Norm::one
                                       : norm == Kor_SparseSym_TwoNorm ? Norm::two
                                                                       : Norm::infinity,
                               .matrix_norm = anorm,
                               .estimate_norm = anorm == 0.0,
                               .weighted = weight == Kor_SparseSym_Weighted,
                               .test_transformed = transformed,
                               .largest_singular_value = sigmax,
                               .estimate_singular_value = bisects,
                               .singular_tolerance = sigtol > 0.0 ? sigtol : kUsualSigtol,
                               .singular_steps = std::min(maxits, maxitn),
                               .monitored = true};
    kor::Workspace<double> block;
    if (SymmetricSolver::create(rules, block) == nullptr) return report.error<NE_ALLOC_FAIL>();
    set_up(*state, reinterpret_cast<SymmetricSolver *>(block.release()));
    report.success();
}
