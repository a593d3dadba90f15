// Sweeps of a function of one variable over its domain against Arb, which bounds its own errors.
//
// A subject is the function, its truth, and where to look: segments filled evenly or evenly in the logarithm, and points
// (splits, zeros, limits) whose neighbourhood is searched densely. Peers are measured on the same points.
#pragma once

#include <arb.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace sweep {

using Function = std::function<double(double)>;
using Truth = void (*)(arb_t value, const arb_t x, slong precision);

struct Segment {
    double from, to;
    bool logarithmic = false;
};

struct Peer {
    const char *name;
    Function f;
};

struct Subject {
    const char *name;
    Function f;
    Truth truth;
    std::vector<Segment> segments;
    std::vector<double> dense = {};
    std::vector<Peer> peers = {};
    // Size against which errors count; null: the value itself. (Amplitude of an oscillating function.)
    double (*amplitude)(double) = nullptr;
};

inline double ulp_of(double y)
{
    y = std::fabs(y);
    if (y < 0x1p-1022) return 0x1p-1074;
    return std::ldexp(1.0, std::ilogb(y) - 52);
}

// |computed - exact| in ulps of max(exact, amplitude).
class Oracle {
  public:
    Oracle()
    {
        arb_init(x_);
        arb_init(y_);
        arb_init(d_);
    }
    ~Oracle()
    {
        arb_clear(x_);
        arb_clear(y_);
        arb_clear(d_);
    }
    // The exact value, to far more digits than a double has.
    void evaluate(Truth truth, double x)
    {
        arb_set_d(x_, x);
        for (slong precision = 140; precision < 20000; precision *= 2) {
            precision_ = precision;
            truth(y_, x_, precision);
            if (arb_rel_accuracy_bits(y_) > 80) return;
        }
    }
    double value() const { return arf_get_d(arb_midref(y_), ARF_RND_NEAR); }
    double error(double computed, double size) const
    {
        const double exact = value();
        if (std::isnan(computed)) return INFINITY;
        if (std::isinf(computed) || std::isinf(exact)) return computed == exact ? 0.0 : INFINITY;
        arb_t c;
        arb_init(c);
        arb_set_d(c, computed);
        arb_sub(const_cast<arb_ptr>(d_), c, y_, precision_ + 200);
        const double difference = std::fabs(arf_get_d(arb_midref(d_), ARF_RND_NEAR));
        arb_clear(c);
        return difference / ulp_of(std::max(std::fabs(exact), std::fabs(size)));
    }

  private:
    arb_t x_, y_, d_;
    slong precision_ = 0;
};

inline std::vector<double> points_of(const Subject &s, long count)
{
    std::mt19937_64 random{20240607};
    std::uniform_real_distribution<double> uniform{0.0, 1.0};
    std::vector<double> points;
    const long dense = s.dense.empty() ? 0 : count / 4;
    const long per_segment = (count - dense) / static_cast<long>(s.segments.size());
    for (const Segment &g : s.segments)
        for (long k = 0; k < per_segment; ++k) {
            const double t = (k + uniform(random)) / per_segment;
            points.push_back(g.logarithmic ? std::copysign(std::exp(std::log(std::fabs(g.from)) * (1 - t) +
                                                                    std::log(std::fabs(g.to)) * t),
                                                           g.from)
                                           : g.from + (g.to - g.from) * t);
        }
    const auto inside = [&](double x) {
        for (const Segment &g : s.segments)
            if (x >= std::min(g.from, g.to) && x <= std::max(g.from, g.to)) return true;
        return false;
    };
    for (const double centre : s.dense)
        for (long k = 0; k < dense / static_cast<long>(s.dense.size()); ++k) {
            // Distances from one ulp to a tenth of the point, evenly in the logarithm.
            const double scale = std::exp2(-52.0 + 49.0 * uniform(random));
            const double size = centre == 0.0 ? 1.0 : std::fabs(centre);
            const double x = centre + (uniform(random) < 0.5 ? -1 : 1) * size * scale;
            if (inside(x)) points.push_back(x);
        }
    return points;
}

struct Worst {
    double error = 0.0, at = 0.0, sum = 0.0;
    long over = 0;
    void add(double e, double x)
    {
        if (std::isfinite(e)) sum += e;
        if (e > 1.0) ++over;
        if (e > error) error = e, at = x;
    }
};

inline void run(const Subject &s, long count, double threshold_to_list = INFINITY)
{
    Oracle oracle;
    const std::vector<double> points = points_of(s, count);
    std::vector<Worst> worst(1 + s.peers.size());
    for (const double x : points) {
        oracle.evaluate(s.truth, x);
        const double size = s.amplitude ? s.amplitude(x) : 0.0;
        const double e = oracle.error(s.f(x), size);
        worst[0].add(e, x);
        if (e > threshold_to_list) std::printf("  %.17g  (%a): %.3f ulp, value %.17g\n", x, x, e, oracle.value());
        for (std::size_t p = 0; p < s.peers.size(); ++p) worst[1 + p].add(oracle.error(s.peers[p].f(x), size), x);
    }
    std::printf("%-10s %7zu points: worst %8.3f ulp at %-24.17g mean %.3f, over 1 ulp: %ld\n", s.name, points.size(),
                worst[0].error, worst[0].at, worst[0].sum / points.size(), worst[0].over);
    for (std::size_t p = 0; p < s.peers.size(); ++p)
        std::printf("  %-8s %7s         worst %8.3g ulp at %-24.17g mean %.3g\n", s.peers[p].name, "",
                    worst[1 + p].error, worst[1 + p].at, worst[1 + p].sum / points.size());
    std::fflush(stdout);
}

// main of a sweep program: names to run (prefixes; none: all), -n count, -l ulps to list.
inline int main_of(const std::vector<Subject> &subjects, int argc, char **argv)
{
    long count = 100000;
    double list = INFINITY;
    std::vector<std::string> names;
    for (int k = 1; k < argc; ++k) {
        if (!std::strcmp(argv[k], "-n") && k + 1 < argc)
            count = std::atol(argv[++k]);
        else if (!std::strcmp(argv[k], "-l") && k + 1 < argc)
            list = std::atof(argv[++k]);
        else
            names.emplace_back(argv[k]);
    }
    for (const Subject &s : subjects) {
        bool wanted = names.empty();
        for (const std::string &name : names) wanted = wanted || std::string{s.name}.rfind(name, 0) == 0;
        if (wanted) run(s, count, list);
    }
    flint_cleanup();
    return 0;
}

} // namespace sweep
