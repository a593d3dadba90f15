// g01ddc: Shapiro and Wilk's test for normality.
#include <kor/g01.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "frame/report.hpp"
#include "special/evaluate.hpp"
#include "stats/normal_law.hpp"

namespace {

using namespace kor::special;

constexpr Integer kFewest = 3, kMost = 2000;
constexpr Integer kSmallSample = 11; // to here the law of W is fitted in n, beyond in ln n

// P. Royston, Statist. Comput. 2 (1992) 117-119, and Appl. Statist. 44 (1995) 547-551. Of 1/sqrt(n): the two largest weights.
constexpr std::array kLargestWeight{0.0, 0.221157, -0.147981, -2.07119, 4.434685, -2.706056};
constexpr std::array kSecondWeight{0.0, 0.042981, -0.293762, -1.752461, 5.682633, -3.582633};
// Of n: the normalising transformation of ln(1 - W) of small samples.
constexpr std::array kShift{-2.273, 0.459};
constexpr std::array kSmallMean{0.544, -0.39978, 0.025054, -0.0006714};
constexpr std::array kSmallLogDeviation{1.3822, -0.77857, 0.062767, -0.0020322};
// Of ln n: the same for larger ones.
constexpr std::array kLargeMean{-1.5861, -0.31082, -0.083751, 0.0038915};
constexpr std::array kLargeLogDeviation{-0.4803, -0.082676, 0.0030302};

// Antisymmetric weights with squares that add to 1: those of the largest values fitted, the others ~ the normal scores of
// Blom.
void make_weights(Integer n, double a[])
{
    const Integer half = n / 2;
    double squares = 0.0;
    for (Integer i = 0; i < half; ++i) {
        a[i] = kor::stats::normal_quantile((i + 0.625) / (n + 0.25));
        squares += 2.0 * a[i] * a[i];
    }
    if (n == 3) {
        a[0] = -std::sqrt(0.5);
    } else {
        const double u = 1.0 / std::sqrt(static_cast<double>(n)), norm = std::sqrt(squares);
        const Integer fitted = n > 5 ? 2 : 1;
        double left = squares, unit = 1.0;
        for (Integer i = 0; i < fitted; ++i) {
            const double weight = (i == 0 ? polynomial(kLargestWeight, u) : polynomial(kSecondWeight, u)) - a[i] / norm;
            left -= 2.0 * a[i] * a[i];
            unit -= 2.0 * weight * weight;
            a[i] = -weight;
        }
        const double factor = std::sqrt(unit / left);
        for (Integer i = fitted; i < half; ++i) a[i] *= factor;
    }
    if (n % 2 == 1) a[half] = 0.0;
    for (Integer i = 0; i < half; ++i) a[n - 1 - i] = -a[i];
}

struct Statistic {
    double w, one_minus_w;
};

// W = (a'd)^2 / d'd, d the deviations from the mean. With s = a'd and r = d - s a: d'd - s^2 = r'r + s^2 (1 - a'a), without
// cancellation.
Statistic statistic_of(Integer n, const double x[], const double a[])
{
    // In units of the range, halved so that it cannot overflow; from a value in the middle, near which little is lost.
    const double unit = 0.5 * x[n - 1] - 0.5 * x[0], origin = x[n / 2];
    const auto scaled = [&](Integer i) { return (0.5 * x[i] - 0.5 * origin) / unit; };
    DoubleDouble sum{0.0}, norm{0.0};
    for (Integer i = 0; i < n; ++i) {
        sum = sum + scaled(i);
        norm = norm + two_square(a[i]);
    }
    const double mean = (sum / n).rounded();
    DoubleDouble product{0.0}, squares{0.0};
    for (Integer i = 0; i < n; ++i) {
        const double d = scaled(i) - mean;
        product = product + two_product(a[i], d);
        squares = squares + two_square(d);
    }
    const double s = product.rounded();
    DoubleDouble rest{0.0};
    for (Integer i = 0; i < n; ++i) rest = rest + two_square((scaled(i) - mean) - s * a[i]);
    const double one_minus_w = ((rest + s * s * (1.0 - norm)) / squares).rounded();
    return {std::fmin(1.0, (two_square(s) / squares).rounded()), std::fmax(0.0, one_minus_w)};
}

double significance(Integer n, Statistic statistic)
{
    constexpr double kThird = 1.0471975511965976,
                     kPerThird = 1.909859317102744; // pi/3 and its double's reciprocal, 6/pi
    if (n == 3) return std::fmin(1.0, std::fmax(0.0, (std::asin(std::sqrt(statistic.w)) - kThird) * kPerThird));
    const double y = std::log(statistic.one_minus_w);
    double z;
    if (n <= kSmallSample) {
        const double m = n, distance = polynomial(kShift, m) - y;
        if (distance <= 0.0) return 0.0; // beyond the range of the transformation
        z = (-std::log(distance) - polynomial(kSmallMean, m)) / std::exp(polynomial(kSmallLogDeviation, m));
    } else {
        const double m = std::log(static_cast<double>(n));
        z = (y - polynomial(kLargeMean, m)) / std::exp(polynomial(kLargeLogDeviation, m));
    }
    return kor::stats::normal_upper(z);
}

} // namespace

void g01ddc(Integer n, const double x[], Boolean calc_wts, double a[], double *w, double *pw, KorError *fail)
{
    const kor::Report report{"g01ddc", fail};
    if (n < kFewest) return report.error<NE_INT_ARG_LT>("n", "3", "n", n);
    if (n > kMost) return report.error<NE_INT_ARG_GT>("n", "2000", "n", n);
    for (Integer i = 1; i < n; ++i)
        if (!(x[i] >= x[i - 1])) return report.error<NE_SAMPLES_NOT_IN_ORDER>();
    if (x[0] == x[n - 1]) return report.error<NE_SAMPLES_ARE_ALL_EQUAL>();

    if (calc_wts) make_weights(n, a);
    const Statistic statistic = statistic_of(n, x, a);
    *w = statistic.w;
    *pw = significance(n, statistic);
    report.success();
}
