// Zeros of polynomials beside GSL: time, and the error of the coefficients that the zeros stand for.
#include <algorithm>
#include <cmath>
#include <complex>
#include <random>
#include <string>
#include <vector>

#include <kor/c02.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_poly.h>
#endif

namespace {

using Wide = std::complex<long double>;

const kor::bench::Heading heading{"Zeros of polynomials with real coefficients",
                                  "largest |p(z)|, in eps times the sum of the moduli of its terms"};

double value_error(const std::vector<double> &a, const std::vector<Complex> &z)
{
    long double worst = 0.0L;
    for (const Complex &zero : z) {
        const Wide w{zero.re, zero.im};
        const bool inside = std::abs(w) <= 1.0L;
        const Wide at = inside ? w : 1.0L / w;
        Wide p{};
        long double terms = 0.0L;
        for (std::size_t k = 0; k < a.size(); ++k) {
            const double coefficient = inside ? a[k] : a[a.size() - 1 - k];
            p = p * at + Wide{coefficient};
            terms = terms * std::abs(at) + std::fabs(coefficient);
        }
        worst = std::max(worst, std::abs(p) / terms);
    }
    return static_cast<double>(worst * 0x1p53L);
}

void add(const std::string &name, const std::vector<double> &a)
{
    const int n = static_cast<int>(a.size()) - 1;
    const auto ours = [a, n] {
        std::vector<Complex> z(n);
        KorError fail{};
        c02agc(n, a.data(), 1, z.data(), &fail);
        return z;
    };
    kor::bench::add(name + "/KOR", [ours] { kor::bench::keep(ours()); }, {.error = value_error(a, ours())});
#ifdef KOR_HAVE_GSL
    const auto gsl = [a, n] {
        gsl_set_error_handler_off();
        const std::vector<double> upwards(a.rbegin(), a.rend());
        std::vector<Complex> z(n);
        gsl_poly_complex_workspace *work = gsl_poly_complex_workspace_alloc(n + 1);
        gsl_poly_complex_solve(upwards.data(), n + 1, work, reinterpret_cast<double *>(z.data()));
        gsl_poly_complex_workspace_free(work);
        return z;
    };
    kor::bench::add(name + "/GSL", [gsl] { kor::bench::keep(gsl()); }, {.error = value_error(a, gsl())});
#endif
}

const bool registered = [] {
    std::mt19937_64 random{5};
    std::normal_distribution<double> normal;
    for (const int n : {3, 10, 30, 100, 300}) {
        std::vector<double> a(n + 1);
        for (double &c : a) c = normal(random);
        add("random, degree " + std::to_string(n), a);
    }
    std::vector<double> wilkinson{1.0};
    for (int zero = 1; zero <= 20; ++zero) {
        wilkinson.push_back(0.0);
        for (int k = zero; k > 0; --k) wilkinson[k] -= zero * wilkinson[k - 1];
    }
    add("Wilkinson, degree 20", wilkinson);
    return true;
}();

} // namespace
