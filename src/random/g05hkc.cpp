// g05hkc: a realisation of an asymmetric GARCH process, news shifted: theta[i] (e + gamma)^2.
#include <kor/g05.h>

#include "random/garch.hpp"

namespace {

struct ShiftedNews {
    static constexpr const char *kConstraint = "gamma is finite";
    double gamma;

    bool gamma_fits(Integer, const double[]) const { return std::fabs(gamma) <= kor::kLargest; }
    double operator()(double alpha, double e) const { return alpha * (e + gamma) * (e + gamma); }
    kor::random::MeanNews mean(double alpha) const { return {alpha * gamma * gamma, alpha}; }
};

} // namespace

void g05hkc(Integer num, Integer p, Integer q, const double theta[], double gamma, Integer fcall, double ht[],
            double et[], KorError *fail)
{
    kor::random::simulate_garch({"g05hkc", fail}, num, p, q, theta, ShiftedNews{gamma}, fcall, ht, et);
}
