// Integrals over finite ranges with a weight: trigonometric, singular at the ends, or 1/(x - c).
#include <algorithm>

#include "quadrature/endpoint_rule.hpp"
#include "quadrature/fourier_range.hpp"
#include "quadrature/principal_value_rule.hpp"
#include "quadrature/request.hpp"

namespace kor::quadrature {

void integrate_trigonometric_weight(const Report &report, Integrand f, double a, double b, double omega,
                                    Integer wt_func, const Request &request)
{
    if (request.max_num_subint < 1)
        return report.error<NE_INT_ARG_LT>("max_num_subint", "1", "max_num_subint", request.max_num_subint);
    if (wt_func != Kor_Cosine && wt_func != Kor_Sine) return report.error<NE_BAD_PARAM>("wt_func");
    ProgressRecord work{request.max_num_subint, true};
    if (!work) return report.error<NE_ALLOC_FAIL>();

    FourierRule rule{omega, wt_func == Kor_Sine};
    const AdaptiveResult outcome =
        integrate_fourier_range(f, a, b, omega, rule, work.subdivision(), tolerance_of(request));
    work.evaluations = rule.evaluations;
    finish(report, outcome, work, request);
}

void integrate_endpoint_weight(const Report &report, Integrand f, double a, double b, double alfa, double beta,
                               Integer wt_func, const Request &request)
{
    if (request.max_num_subint < 2)
        return report.error<NE_INT_ARG_LT>("max_num_subint", "2", "max_num_subint", request.max_num_subint);
    if (!(alfa > -1.0)) return report.error<NE_REAL_ARG_LE>("alfa", "-1.0", "alfa", alfa);
    if (!(beta > -1.0)) return report.error<NE_REAL_ARG_LE>("beta", "-1.0", "beta", beta);
    if (!(b > a)) return report.error<NE_2_REAL_ARG_LE>("b", b, "a", a, "b", "a");
    if (wt_func != Kor_Alg && wt_func != Kor_Alg_loga && wt_func != Kor_Alg_logb && wt_func != Kor_Alg_loga_logb)
        return report.error<NE_BAD_PARAM>("wt_func");
    ProgressRecord work{request.max_num_subint};
    if (!work) return report.error<NE_ALLOC_FAIL>();

    EndpointRule weighted{a,
                          b,
                          alfa,
                          beta,
                          wt_func == Kor_Alg_loga || wt_func == Kor_Alg_loga_logb,
                          wt_func == Kor_Alg_logb || wt_func == Kor_Alg_loga_logb};
    const auto rule = [&](double left, double right) { return weighted(f, left, right); };
    const double middle = 0.5 * (a + b);
    const RuleValue first = rule(a, middle), second = rule(middle, b);
    Subdivision &s = work.subdivision();
    s.start(a, middle, first);
    s.start(middle, b, second);
    s.order_by_error();

    AdaptiveResult outcome{first.result + second.result, first.error + second.error};
    const Tolerance tolerance = tolerance_of(request);
    if (!(outcome.error <= tolerance.bound(outcome.result))) {
        if (s.limit == 2)
            outcome.status = AdaptiveStatus::limit;
        else
            outcome = bisect_adaptively(
                s, rule, [](double left, double right) { return 0.5 * (left + right); }, tolerance,
                {.absolute_width = 1000.0, .relative_width = 1000.0, .both_counters = false}, outcome);
    }
    work.evaluations = weighted.evaluations;
    finish(report, outcome, work, request);
}

void integrate_principal_value(const Report &report, Integrand f, double a, double b, double c, const Request &request)
{
    if (request.max_num_subint < 1)
        return report.error<NE_INT_ARG_LT>("max_num_subint", "1", "max_num_subint", request.max_num_subint);
    if (c == a) return report.error<NE_2_REAL_ARG_EQ>("c", c, "a", a, "c", "a");
    if (c == b) return report.error<NE_2_REAL_ARG_EQ>("c", c, "b", b, "c", "b");
    ProgressRecord work{request.max_num_subint};
    if (!work) return report.error<NE_ALLOC_FAIL>();

    // The rules want the range in the order of the axis; the integral over a backward range has the other sign.
    const double sign = a <= b ? 1.0 : -1.0;
    const double low = std::min(a, b), high = std::max(a, b);
    const auto rule = [&](double left, double right) {
        return principal_value_rule(f, left, right, c, work.evaluations);
    };
    const RuleValue whole = rule(low, high);
    Subdivision &s = work.subdivision();
    s.start(low, high, whole);
    const Tolerance tolerance = tolerance_of(request);
    const double bound = tolerance.bound(whole.result);
    AdaptiveResult outcome{whole.result, whole.error};
    if (!(whole.error < std::min(0.01 * std::fabs(whole.result), bound))) {
        if (s.limit == 1)
            outcome.status = AdaptiveStatus::limit;
        else
            // No bisection at the singular point: that half of the range is bisected in its own middle.
            outcome = bisect_adaptively(
                s, rule,
                [c](double left, double right) {
                    const double middle = 0.5 * (left + right);
                    if (left < c && c <= middle) return 0.5 * (c + right);
                    if (middle < c && c < right) return 0.5 * (left + c);
                    return middle;
                },
                tolerance, {.absolute_width = 1000.0, .relative_width = 1000.0, .both_counters = true}, outcome);
    }
    outcome.result *= sign;
    if (sign < 0.0)
        for (Integer i = 0; i < s.count; ++i) s.result[i] = -s.result[i];
    finish(report, outcome, work, request);
}

} // namespace kor::quadrature
