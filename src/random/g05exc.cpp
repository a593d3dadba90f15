// g05exc: sets up the reference vector of any discrete law, from its probabilities or from its cumulative ones.
#include <kor/g05.h>

#include <cmath>
#include <limits>

#include "frame/report.hpp"
#include "random/reference_vector.hpp"

void g05exc(const double p[], Integer np, Integer ip1, Integer comp_type, double r[], Integer nr, KorError *fail)
{
    using namespace kor::random;
    const kor::Report report{"g05exc", fail};
    if (np < 1) return report.error<NE_INT_ARG_LT>("np", "1", "np", np);
    if (ip1 > std::numeric_limits<Integer>::max() - (np - 1))
        return report.error<NE_INT_ARG_GT>("ip1", "2147483648 - np", "ip1", ip1);
    if (comp_type != Kor_PDF && comp_type != Kor_CDF) return report.error<NE_BAD_PARAM>("comp_type");
    if (nr < reference_length(np)) return report_too_short(report, reference_length(np), nr);

    const bool cumulative = comp_type == Kor_CDF;
    double total = 0.0;
    for (Integer i = 0; i < np; ++i) {
        if (!(p[i] >= 0.0)) return report.error<NE_NEG_PROB>();
        if (cumulative && i > 0 && p[i] < p[i - 1])
            return report.error<NE_NOT_INCREASING>("p", "p", i - 1, p[i - 1], "p", i, p[i]);
        total = cumulative ? p[i] : total + p[i];
    }
    if (total == 0.0) return report.error<NE_ALL_PROB_ZERO>();
    if (!(total <= std::numeric_limits<double>::max())) return report.error<NE_PROB_NOT_ONE>();

    set_reference(p, np, cumulative, ip1, r, nr);
    report.success();
}
