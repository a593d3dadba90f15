// g05hac: a realisation of an ARMA process, stationary from its first value.
//
// An autoregression y with the coefficients phi is drawn from its own law: each of its first p values from its prediction
// by those before it, whose coefficients and variance the Levinson recursion, run downwards, gives. The moving average of y
// with the coefficients theta is the process. J. Durbin, Rev. Int. Statist. Inst. 28 (1960) 233-244.
#include <kor/g05.h>

#include <algorithm>
#include <cmath>

#include "frame/report.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "random/standard_normal.hpp"

namespace {

using namespace kor::random;

// Row k, from 0 to p: coefficients of the best prediction from k values, for the autoregression phi, which is row p;
// deviation[k]: the standard deviation of its error. False when the autoregression is not stationary.
bool predictors(Integer p, const double phi[], double variance, kor::RowMajor<double> coefficient, double deviation[])
{
    for (Integer i = 0; i < p; ++i) coefficient(p, i) = phi[i];
    for (Integer k = p; k > 0; --k) {
        deviation[k] = std::sqrt(variance);
        const double *full = coefficient.row(k), reflection = full[k - 1],
                     remains = (1.0 - reflection) * (1.0 + reflection);
        if (!(remains > 0.0)) return false;
        variance /= remains;
        for (Integer i = 0; i + 1 < k; ++i) coefficient(k - 1, i) = (full[i] + reflection * full[k - 2 - i]) / remains;
    }
    deviation[0] = std::sqrt(variance);
    return true;
}

} // namespace

void g05hac(Integer p, Integer q, const double phi[], const double theta[], double vara, Integer n, double z[],
            KorError *fail)
{
    const kor::Report report{"g05hac", fail};
    if (p < 0) return report.error<NE_INT_ARG_LT>("p", "0", "p", p);
    if (q < 0) return report.error<NE_INT_ARG_LT>("q", "0", "q", q);
    if (!(vara > 0.0)) return report.error<NE_REAL_ARG_LE>("vara", "0.0", "vara", vara);
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    kor::Workspace<double> rows{(kor::Count{p} + 1) * p}, deviation{kor::Count{p} + 1}, series{kor::Count{n} + q};
    if (!rows || !deviation || !series) return report.error<NE_ALLOC_FAIL>();
    const kor::RowMajor<double> coefficient{rows.data(), p};
    if (!predictors(p, phi, vara, coefficient, deviation.data())) return report.error<NE_STATIONARITY>();

    State &state = g05caz();
    const std::ptrdiff_t length = static_cast<std::ptrdiff_t>(n) + q;
    for (std::ptrdiff_t t = 0; t < length; ++t) {
        const auto order = static_cast<Integer>(std::min<std::ptrdiff_t>(t, p));
        double y = deviation[order] * standard_normal(state);
        for (Integer i = 0; i < order; ++i) y += coefficient(order, i) * series[t - 1 - i];
        series[t] = y;
    }
    for (std::ptrdiff_t t = 0; t < n; ++t) {
        const double *now = series.data() + q + t;
        double value = *now;
        for (Integer i = 1; i <= q; ++i) value -= theta[i - 1] * now[-i];
        z[t] = value;
    }
    report.success();
}
