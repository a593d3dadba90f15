// Integrals over finite ranges without weight: the general one, the oscillating one, and the one with break points.
#include <algorithm>

#include "quadrature/gauss_kronrod.hpp"
#include "quadrature/request.hpp"

namespace kor::quadrature {

void integrate_general(const Report &report, Integrand f, double a, double b, const Request &request)
{
    if (request.max_num_subint < 1)
        return report.error<NE_INT_ARG_LT>("max_num_subint", "1", "max_num_subint", request.max_num_subint);
    ProgressRecord work{request.max_num_subint};
    if (!work) return report.error<NE_ALLOC_FAIL>();

    const auto rule = [&](double left, double right, Integer) {
        work.evaluations += kPair21.points;
        return apply_pair<kPair21>(f, left, right);
    };
    finish(report, extrapolate_from_one(work.subdivision(), rule, a, b, tolerance_of(request)), work, request);
}

void integrate_oscillating(const Report &report, Integrand f, double a, double b, const Request &request)
{
    if (request.max_num_subint < 1)
        return report.error<NE_INT_ARG_LT>("max_num_subint", "1", "max_num_subint", request.max_num_subint);
    ProgressRecord work{request.max_num_subint};
    if (!work) return report.error<NE_ALLOC_FAIL>();

    const auto rule = [&](double left, double right) {
        work.evaluations += kPair61.points;
        return apply_pair<kPair61>(f, left, right);
    };
    const RuleValue whole = rule(a, b);
    work.subdivision().start(a, b, whole);
    const Tolerance tolerance = tolerance_of(request);
    const double bound = tolerance.bound(whole.result);
    AdaptiveResult outcome{whole.result, whole.error};
    if (!((whole.error <= bound && whole.error != whole.resasc) || whole.error == 0.0)) {
        outcome.status = status_at_start(whole, bound, request.max_num_subint, 50.0);
        if (outcome.status == AdaptiveStatus::converged)
            outcome = bisect_adaptively(
                work.subdivision(), rule, [](double left, double right) { return 0.5 * (left + right); }, tolerance,
                {.absolute_width = 10000.0, .relative_width = 6000.0, .both_counters = false}, outcome);
    }
    finish(report, outcome, work, request);
}

namespace {

// The pieces between the break points. False if a point lies outside (a, b).
template <class Rule>
bool start_from_pieces(Subdivision &s, Rule &&rule, double a, double b, Integer nbrkpts, double *points,
                       RuleValue &total)
{
    const double low = std::min(a, b), high = std::max(a, b);
    for (Integer i = 0; i < nbrkpts; ++i)
        if (!(points[i] >= low && points[i] <= high)) return false;
    std::sort(points, points + nbrkpts);
    if (a > b) std::reverse(points, points + nbrkpts);

    total = {};
    bool no_estimate = false; // a piece whose error says nothing
    double left = a;
    for (Integer i = 0; i <= nbrkpts; ++i) {
        const double right = i < nbrkpts ? points[i] : b;
        const RuleValue piece = rule(left, right, 0);
        s.start(left, right, piece);
        total.result += piece.result;
        total.error += piece.error;
        total.resabs += piece.resabs;
        if (piece.error == piece.resasc && piece.error != 0.0) {
            s.level[i] = 1; // a mark until all pieces are there
            no_estimate = true;
        }
        left = right;
    }
    for (Integer i = 0; no_estimate && i < s.count; ++i)
        if (s.level[i] != 0) s.error[i] = total.error;
    std::fill(s.level, s.level + s.count, 0);
    s.order_by_error();
    return true;
}

} // namespace

void integrate_with_breaks(const Report &report, Integrand f, double a, double b, Integer nbrkpts, const double *brkpts,
                           const Request &request)
{
    const Integer limit = request.max_num_subint;
    if (limit < 1) return report.error<NE_INT_ARG_LT>("max_num_subint", "1", "max_num_subint", limit);
    if (nbrkpts < 0) return report.error<NE_INT_ARG_LT>("nbrkpts", "0", "nbrkpts", nbrkpts);
    if (limit <= nbrkpts)
        return report.error<NE_2_INT_ARG_LE>("max_num_subint", limit, "nbrkpts", nbrkpts, "max_num_subint", "nbrkpts");
    ProgressRecord work{limit, true};
    Workspace<double> points{Count{nbrkpts}};
    if (!work || !points) return report.error<NE_ALLOC_FAIL>();
    std::copy(brkpts, brkpts + nbrkpts, points.data());

    const auto rule = [&](double left, double right, Integer) {
        work.evaluations += kPair21.points;
        return apply_pair<kPair21>(f, left, right);
    };
    RuleValue total;
    if (!start_from_pieces(work.subdivision(), rule, a, b, nbrkpts, points.data(), total))
        return report.error<NE_QUAD_BRKPTS_INVAL>(a, b);

    const Tolerance tolerance = tolerance_of(request);
    const double bound = tolerance.bound(total.result);
    AdaptiveResult outcome{total.result, total.error};
    if (!(total.error <= bound)) {
        // As many pieces as there is room for, and none can be bisected.
        outcome.status = status_at_start(total, bound, limit == nbrkpts + 1 ? 1 : limit, 100.0);
        if (outcome.status == AdaptiveStatus::converged)
            outcome = bisect_and_extrapolate(work.subdivision(), rule, LargeByLevel{}, AlwaysRegular{}, tolerance,
                                             {total.resabs, true, false});
    }
    finish(report, outcome, work, request);
}

} // namespace kor::quadrature
