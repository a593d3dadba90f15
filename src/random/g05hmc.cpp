// g05hmc: a realisation of an asymmetric GARCH process, more weight for bad news: (theta[i] + gamma [e < 0]) e^2.
#include <kor/g05.h>

#include "random/garch.hpp"

namespace {

struct ThresholdNews {
    static constexpr const char *kConstraint = "theta[i] + gamma >= 0.0, for i=1,2,...,q";
    double gamma;

    bool gamma_fits(Integer q, const double theta[]) const
    {
        for (Integer i = 1; i <= q; ++i)
            if (!(theta[i] + gamma >= 0.0)) return false;
        return gamma <= kor::kLargest;
    }
    double operator()(double alpha, double e) const { return (e < 0.0 ? alpha + gamma : alpha) * e * e; }
    kor::random::MeanNews mean(double alpha) const { return {0.0, alpha + 0.5 * gamma}; }
};

} // namespace

void g05hmc(Integer num, Integer p, Integer q, const double theta[], double gamma, Integer fcall, double ht[],
            double et[], KorError *fail)
{
    kor::random::simulate_garch({"g05hmc", fail}, num, p, q, theta, ThresholdNews{gamma}, fcall, ht, et);
}
