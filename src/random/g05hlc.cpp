// g05hlc: a realisation of an asymmetric GARCH process, news scaled by its sign: theta[i] (|e| + gamma e)^2.
#include <kor/g05.h>

#include "random/garch.hpp"

namespace {

struct ScaledNews {
    static constexpr const char *kConstraint = "gamma is finite";
    double gamma;

    bool gamma_fits(Integer, const double[]) const { return std::fabs(gamma) <= kor::kLargest; }
    double operator()(double alpha, double e) const
    {
        const double size = std::fabs(e) + gamma * e;
        return alpha * size * size;
    }
    kor::random::MeanNews mean(double alpha) const { return {0.0, alpha * (1.0 + gamma * gamma)}; }
};

} // namespace

void g05hlc(Integer num, Integer p, Integer q, const double theta[], double gamma, Integer fcall, double ht[],
            double et[], KorError *fail)
{
    kor::random::simulate_garch({"g05hlc", fail}, num, p, q, theta, ScaledNews{gamma}, fcall, ht, et);
}
