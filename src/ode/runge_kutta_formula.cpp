#include "ode/runge_kutta_formula.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "frame/constants.hpp"
#include "ode/runge_kutta_tables.hpp"

namespace kor::ode {

namespace {

template <class Pair>
constexpr PairFigures figures(bool interpolant)
{
    return {Pair::kStages,          Pair::kSlots,         Pair::kFirstSameAsLast, Pair::kCost,        Pair::kOrder,
            Pair::kStabilityRadius, Pair::kSectorTangent, Pair::kSecondarySteps,  Pair::kSmallestGap, interpolant};
}

constexpr PairFigures kFigures[] = {figures<Pair23>(true), figures<Pair45>(true), figures<Pair78>(false)};

// sum of row[j] k_j over the terms that are not zero. The row is known to the compiler, which leaves nothing else of it.
template <class Row, std::size_t... j>
[[gnu::always_inline]] inline double combination(const double *k, std::size_t n, std::index_sequence<j...>)
{
    double sum = 0.0;
    const auto term = [&]<std::size_t column>() {
        if constexpr (Row::at(column) != 0.0) sum += Row::at(column) * k[column * n];
    };
    (term.template operator()<j>(), ...);
    return sum;
}

// A vector load of what has just been stored element by element waits until the stores have left the pipeline, at every
// stage: systems of a few equations are faster without vectors. The compiler does not vectorise across this.
constexpr std::size_t kFewEquations = 8;
inline void no_vectors() { __asm__ volatile("" ::: "memory"); }

// out = y + h sum of row[j] k_j.
template <class Row, std::size_t count>
void advance(const double *__restrict y, const double *__restrict k, std::size_t n, double h, double *__restrict out)
{
    constexpr std::make_index_sequence<count> columns;
    if (n < kFewEquations) {
        for (std::size_t i = 0; i < n; ++i) {
            out[i] = y[i] + h * combination<Row>(k + i, n, columns);
            no_vectors();
        }
        return;
    }
    for (std::size_t i = 0; i < n; ++i) out[i] = y[i] + h * combination<Row>(k + i, n, columns);
}

template <class Pair, std::size_t stage>
struct StageRow {
    static constexpr double at(std::size_t j) { return Pair::a[stage][j]; }
};
template <class Pair>
struct ResultRow {
    static constexpr double at(std::size_t j) { return Pair::b[j]; }
};
template <class Pair>
struct ErrorRow {
    static constexpr double at(std::size_t j) { return Pair::e[j]; }
};

template <class Pair, std::size_t stage>
void evaluate_stage(const RightHandSide &f, double t, double t_end, double h, const double *y, double *k, double *point)
{
    const auto n = static_cast<std::size_t>(f.neq);
    advance<StageRow<Pair, stage>, stage>(y, k, n, h, point);
    f(Pair::c[stage] == 1.0 ? t_end : t + Pair::c[stage] * h, point, k + stage * n);
}

template <class Pair, std::size_t... s>
bool run(const RightHandSide &f, double t, double t_end, double h, const double *y, double *k, double *y_new,
         StageWatch *watch, std::index_sequence<s...>)
{
    const auto n = static_cast<std::size_t>(f.neq);
    evaluate_stage<Pair, 1>(f, t, t_end, h, y, k, y_new);
    if (watch != nullptr && (*watch)(t + Pair::c[1] * h, y_new, k + n)) return false;
    (evaluate_stage<Pair, s + 2>(f, t, t_end, h, y, k, y_new), ...);
    // The last stage of a pair whose first is the same as the last stands at the result.
    if constexpr (!Pair::kFirstSameAsLast) advance<ResultRow<Pair>, Pair::kStages>(y, k, n, h, y_new);
    return true;
}

template <class Pair>
double largest_error(std::size_t n, double h, const double *y, const double *y_new, const double *k,
                     const double *thres)
{
    double largest = 0.0;
    bool finite = true;
    for (std::size_t i = 0; i < n; ++i) {
        const double size = 0.5 * std::fabs(y[i]) + 0.5 * std::fabs(y_new[i]);
        const double reciprocal = 1.0 / std::max(thres[i], size);
        const double e = h * combination<ErrorRow<Pair>>(k + i, n, std::make_index_sequence<Pair::kStages>{});
        // An infinite weight would call any error small.
        finite &= size <= kLargest && std::fabs(e) <= kLargest;
        largest = std::max(largest, std::fabs(e) * reciprocal);
    }
    return finite ? largest : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

const PairFigures &figures_of(Integer method) { return kFigures[method - 1]; }

bool pair_step(Integer method, const RightHandSide &f, double t, double t_end, double h, const double *y, double *k,
               double *y_new, StageWatch *watch)
{
    const auto with = [&]<class Pair>(Pair) {
        return run<Pair>(f, t, t_end, h, y, k, y_new, watch, std::make_index_sequence<Pair::kStages - 2>{});
    };
    if (method == 1) return with(Pair23{});
    if (method == 2) return with(Pair45{});
    return with(Pair78{});
}

double pair_error(Integer method, std::size_t n, double h, const double *y, const double *y_new, const double *k,
                  const double *thres)
{
    if (method == 1) return largest_error<Pair23>(n, h, y, y_new, k, thres);
    if (method == 2) return largest_error<Pair45>(n, h, y, y_new, k, thres);
    return largest_error<Pair78>(n, h, y, y_new, k, thres);
}

void extra_stages(const RightHandSide &f, double t, double h, const double *y, double *k, double *scratch)
{
    evaluate_stage<Pair45, 8>(f, t, t + h, h, y, k, scratch);
    evaluate_stage<Pair45, 9>(f, t, t + h, h, y, k, scratch);
    evaluate_stage<Pair45, 10>(f, t, t + h, h, y, k, scratch);
}

namespace {

template <std::size_t power>
struct InterpolantColumn {
    static constexpr double at(std::size_t j) { return Pair45::r[j][power - 2]; }
};

template <std::size_t... p>
void fill_coefficients(std::size_t n, std::size_t nwant, double h, const double *k, double *out,
                       std::index_sequence<p...>)
{
    for (std::size_t i = 0; i < nwant; ++i)
        ((out[p * nwant + i] =
              h * combination<InterpolantColumn<p + 2>>(k + i, n, std::make_index_sequence<Pair45::kSlots>{})),
         ...);
}

} // namespace

void interpolant_coefficients(std::size_t n, std::size_t nwant, double h, const double *k, double *coefficients)
{
    fill_coefficients(n, nwant, h, k, coefficients, std::make_index_sequence<5>{});
}

} // namespace kor::ode
