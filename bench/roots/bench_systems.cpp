// Systems of nonlinear equations beside MINPACK and GSL: the set of More, Garbow and Hillstrom from three starting points.
#include <cmath>
#include <cstdio>
#include <vector>

#include <kor/c05.h>

#include "../tests/roots/nonlinear_systems.hpp"
#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_multiroots.h>
#endif

#ifdef KOR_HAVE_MINPACK
extern "C" {
void hybrd_(void (*fcn)(int *, double *, double *, int *), int *n, double *x, double *fvec, double *xtol, int *maxfev,
            int *ml, int *mu, double *epsfcn, double *diag, int *mode, double *factor, int *nprint, int *info,
            int *nfev, double *fjac, int *ldfjac, double *r, int *lr, double *qtf, double *wa1, double *wa2,
            double *wa3, double *wa4);
void hybrj_(void (*fcn)(int *, double *, double *, double *, int *, int *), int *n, double *x, double *fvec,
            double *fjac, int *ldfjac, double *xtol, int *maxfev, double *diag, int *mode, double *factor, int *nprint,
            int *info, int *nfev, int *njev, double *r, int *lr, double *qtf, double *wa1, double *wa2, double *wa3,
            double *wa4);
}
#endif

namespace {

using kor::testing::NonlinearSystem;
using kor::testing::Vector;

constexpr double kTolerance = 1e-10;
constexpr double kSolved = 1e-7; // norm of f of a point that counts as a zero

const kor::bench::Heading heading{"Systems of nonlinear equations", "starts, of 66, that were not solved"};

const NonlinearSystem *current = nullptr;
long calls = 0;
long jacobians = 0;

struct Totals {
    int solved = 0;
    long calls = 0;
};

void value(Integer n, const double x[], double fvec[], Integer *)
{
    ++calls;
    current->f(n, x, fvec);
}

void value_or_jacobian(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *flag)
{
    if (*flag == 1) return value(n, x, fvec, flag);
    ++jacobians;
    kor::testing::difference_jacobian(*current, x, fjac, tdfjac);
}

double kor_by_differences(Vector &x)
{
    Vector fvec(x.size());
    KorError fail{};
    c05nbc(static_cast<Integer>(x.size()), value, x.data(), fvec.data(), kTolerance, &fail);
    return kor::testing::norm2(fvec);
}

double kor_with_jacobian(Vector &x)
{
    const auto n = static_cast<Integer>(x.size());
    Vector fvec(n), fjac(n * n);
    KorError fail{};
    c05pbc(n, value_or_jacobian, x.data(), fvec.data(), fjac.data(), n, kTolerance, &fail);
    return kor::testing::norm2(fvec);
}

#ifdef KOR_HAVE_MINPACK
// The same settings as ours: unit scales, first region 100 |x|.
double minpack_by_differences(Vector &x)
{
    int n = static_cast<int>(x.size()), maxfev = 200 * (n + 1), band = n - 1, mode = 2, nprint = 0, info, nfev;
    int lr = n * (n + 1) / 2;
    double tolerance = kTolerance, epsfcn = 0.0, factor = 100.0;
    Vector fvec(n), diag(n, 1.0), fjac(n * n), r(lr), qtf(n), a(n), b(n), c(n), d(n);
    const auto f = [](int *m, double *at, double *values, int *) { value(*m, at, values, nullptr); };
    hybrd_(f, &n, x.data(), fvec.data(), &tolerance, &maxfev, &band, &band, &epsfcn, diag.data(), &mode, &factor,
           &nprint, &info, &nfev, fjac.data(), &n, r.data(), &lr, qtf.data(), a.data(), b.data(), c.data(), d.data());
    return kor::testing::norm2(fvec);
}

double minpack_with_jacobian(Vector &x)
{
    int n = static_cast<int>(x.size()), maxfev = 100 * (n + 1), mode = 2, nprint = 0, info, nfev, njev;
    int lr = n * (n + 1) / 2;
    double tolerance = kTolerance, factor = 100.0;
    Vector fvec(n), diag(n, 1.0), fjac(n * n), r(lr), qtf(n), a(n), b(n), c(n), d(n);
    const auto f = [](int *m, double *at, double *values, double *jacobian, int *ld, int *flag) {
        if (*flag == 1) return value(*m, at, values, nullptr);
        ++jacobians;
        Vector rows(static_cast<std::size_t>(*m) * *m);
        kor::testing::difference_jacobian(*current, at, rows.data(), *m);
        for (int i = 0; i < *m; ++i)
            for (int j = 0; j < *m; ++j) jacobian[i + j * *ld] = rows[i * *m + j];
    };
    hybrj_(f, &n, x.data(), fvec.data(), fjac.data(), &n, &tolerance, &maxfev, diag.data(), &mode, &factor, &nprint,
           &info, &nfev, &njev, r.data(), &lr, qtf.data(), a.data(), b.data(), c.data(), d.data());
    return kor::testing::norm2(fvec);
}
#endif

#ifdef KOR_HAVE_GSL
double gsl_by_differences(Vector &x)
{
    const std::size_t n = x.size();
    gsl_set_error_handler_off();
    gsl_multiroot_function f{[](const gsl_vector *at, void *, gsl_vector *values) -> int {
                                 value(static_cast<Integer>(at->size), at->data, values->data, nullptr);
                                 return GSL_SUCCESS;
                             },
                             n, nullptr};
    gsl_multiroot_fsolver *solver = gsl_multiroot_fsolver_alloc(gsl_multiroot_fsolver_hybrid, n);
    gsl_vector_view start = gsl_vector_view_array(x.data(), n);
    gsl_multiroot_fsolver_set(solver, &f, &start.vector);
    const long limit = 200 * (static_cast<long>(n) + 1);
    const long before = calls;
    while (calls - before < limit) {
        if (gsl_multiroot_fsolver_iterate(solver) != GSL_SUCCESS) break;
        if (gsl_multiroot_test_delta(solver->dx, solver->x, 0.0, kTolerance) == GSL_SUCCESS) break;
    }
    const double norm = kor::testing::norm2(Vector(solver->f->data, solver->f->data + n));
    gsl_multiroot_fsolver_free(solver);
    return norm;
}
#endif

Totals run(double (*solve)(Vector &))
{
    Totals totals;
    calls = jacobians = 0;
    for (const NonlinearSystem &system : kor::testing::nonlinear_systems())
        for (const double factor : {1.0, 10.0, 100.0}) {
            current = &system;
            Vector x = kor::testing::scaled_start(system, factor);
            if (solve(x) < kSolved) ++totals.solved;
        }
    totals.calls = calls + jacobians;
    return totals;
}

void add(const char *name, double (*solve)(Vector &))
{
    constexpr int kStarts = 66;
    const Totals totals = run(solve);
    kor::bench::add(
        name, [solve] { run(solve); },
        {.error = static_cast<double>(kStarts - totals.solved), .calls = static_cast<double>(totals.calls)});
}

// One large system whose functions cost little: what the method itself costs.
void add_large(const char *name, double (*solve)(Vector &))
{
    constexpr int kLarge = 500;
    static const NonlinearSystem system{"Broyden tridiagonal", kLarge, kor::testing::mgh::broyden_tridiagonal, nullptr};
    const auto once = [solve] {
        current = &system;
        Vector x(kLarge, -1.0);
        return solve(x);
    };
    calls = 0;
    once();
    kor::bench::add(name, once, {.calls = static_cast<double>(calls)});
}

const bool registered = [] {
    add("test set, differences/KOR", kor_by_differences);
    add("test set, Jacobian/KOR", kor_with_jacobian);
    add_large("n = 500, differences/KOR", kor_by_differences);
#ifdef KOR_HAVE_MINPACK
    add("test set, differences/MINPACK", minpack_by_differences);
    add("test set, Jacobian/MINPACK", minpack_with_jacobian);
    add_large("n = 500, differences/MINPACK", minpack_by_differences);
#endif
#ifdef KOR_HAVE_GSL
    add("test set, differences/GSL", gsl_by_differences);
    add_large("n = 500, differences/GSL", gsl_by_differences);
#endif
    return true;
}();

} // namespace
