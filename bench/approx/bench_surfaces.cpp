// Surfaces: bicubic splines beside GSL; scattered data, for which rates count.
#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <kor/e01.h>
#include <kor/e02.h>
#include <kor/x04.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_interp2d.h>
#include <gsl/gsl_spline2d.h>
#endif

namespace {

const kor::bench::Heading heading{"Surfaces, time a point", "root mean square error against the function"};

double hill(double x, double y) { return std::sin(3.0 * x) * std::cos(2.0 * y) + x * y; }

struct Places {
    std::vector<double> x, y;
    Places(int n, double margin, unsigned seed)
    {
        std::mt19937_64 random{seed};
        std::uniform_real_distribution<double> uniform;
        for (int i = 0; i < n; ++i) {
            x.push_back(margin + (1.0 - 2.0 * margin) * uniform(random));
            y.push_back(margin + (1.0 - 2.0 * margin) * uniform(random));
        }
    }
    Integer n() const { return static_cast<Integer>(x.size()); }
    double error(const std::vector<double> &values) const
    {
        double sum = 0.0;
        for (std::size_t k = 0; k < x.size(); ++k) sum += std::pow(values[k] - hill(x[k], y[k]), 2);
        return std::sqrt(sum / static_cast<double>(x.size()));
    }
};

void grid(int m)
{
    using namespace kor::bench;
    const std::string size = ", " + std::to_string(m) + " by " + std::to_string(m);
    const auto x = std::make_shared<std::vector<double>>(), f = std::make_shared<std::vector<double>>();
    for (int i = 0; i < m; ++i) x->push_back(i / (m - 1.0));
    for (const double px : *x)
        for (const double py : *x) f->push_back(hill(px, py));
    const auto places = std::make_shared<const Places>(m * m, 0.1, 1);
    const auto values = std::make_shared<std::vector<double>>(m * m),
               mesh = std::make_shared<std::vector<double>>(m * m);
    const auto line = std::make_shared<std::vector<double>>();
    for (int i = 0; i < m; ++i) line->push_back((i + 0.5) / m);
    const double items = static_cast<double>(m) * m;

    const auto build = [x, f, m](KorSpline2D &spline) {
        KorError fail{};
        e01dac(m, m, x->data(), x->data(), f->data(), &spline, &fail);
    };
    const auto spline = std::make_shared<KorSpline2D>();
    build(*spline);
    KorError fail{};
    e02dec(places->n(), places->x.data(), places->y.data(), values->data(), spline.get(), &fail);
    const double error = places->error(*values);
    add("spline through a grid" + size + "/KOR",
        [build] {
            KorSpline2D fresh;
            build(fresh);
            keep(fresh.c[0]);
            for (double **array : {&fresh.lamda, &fresh.mu, &fresh.c}) x04bdc(reinterpret_cast<void **>(array));
        },
        {.error = error, .items = items});
    add("values at points" + size + "/KOR",
        [places, values, spline] {
            KorError quiet{};
            e02dec(places->n(), places->x.data(), places->y.data(), values->data(), spline.get(), &quiet);
            keep(values->data());
        },
        {.error = error, .items = items});
    add("values on a mesh" + size + "/KOR",
        [line, mesh, spline, m] {
            KorError quiet{};
            e02dfc(m, m, line->data(), line->data(), mesh->data(), spline.get(), &quiet);
            keep(mesh->data());
        },
        {.items = items});
#ifdef KOR_HAVE_GSL
    // GSL counts the first coordinate fastest: x and y change places.
    const std::shared_ptr<gsl_spline2d> peer{gsl_spline2d_alloc(gsl_interp2d_bicubic, m, m), gsl_spline2d_free};
    gsl_spline2d_init(peer.get(), x->data(), x->data(), f->data(), m, m);
    std::vector<double> theirs;
    for (Integer k = 0; k < places->n(); ++k)
        theirs.push_back(gsl_spline2d_eval(peer.get(), places->y[k], places->x[k], nullptr, nullptr));
    const double peer_error = places->error(theirs);
    add("spline through a grid" + size + "/GSL",
        [x, f, m] {
            gsl_spline2d *fresh = gsl_spline2d_alloc(gsl_interp2d_bicubic, m, m);
            gsl_spline2d_init(fresh, x->data(), x->data(), f->data(), m, m);
            keep(fresh);
            gsl_spline2d_free(fresh);
        },
        {.error = peer_error, .items = items});
    add("values at points" + size + "/GSL",
        [places, peer] {
            double sum = 0.0;
            for (Integer k = 0; k < places->n(); ++k)
                sum += gsl_spline2d_eval(peer.get(), places->y[k], places->x[k], nullptr, nullptr);
            keep(sum);
        },
        {.error = peer_error, .items = items});
    add("values on a mesh" + size + "/GSL",
        [line, peer] {
            double sum = 0.0;
            for (const double px : *line)
                for (const double py : *line) sum += gsl_spline2d_eval(peer.get(), py, px, nullptr, nullptr);
            keep(sum);
        },
        {.items = items});
#endif
}

void scattered(int m)
{
    using namespace kor::bench;
    const auto points = std::make_shared<const Places>(m, 0.0, 2);
    const auto f = std::make_shared<std::vector<double>>();
    for (int i = 0; i < m; ++i) f->push_back(hill(points->x[i], points->y[i]));
    constexpr int n = 20000;
    const auto places = std::make_shared<const Places>(n, 0.05, 3);
    for (const Integer method : {Kor_RC, Kor_Shep}) {
        const std::string name = std::string{method == Kor_RC ? "triangles" : "Shepard"} + ", m = " + std::to_string(m);
        const auto build = [points, f, method, m](KorScatterRecord &comm) {
            KorError fail{};
            e01sac(method, m, points->x.data(), points->y.data(), f->data(), &comm, nullptr, &fail);
        };
        const std::shared_ptr<KorScatterRecord> surface{new KorScatterRecord{}, [](KorScatterRecord *comm) {
                                                            e01szc(comm);
                                                            delete comm;
                                                        }};
        build(*surface);
        const auto values = std::make_shared<std::vector<double>>(n);
        const auto run = [surface, places, values] {
            KorError fail{};
            e01sbc(surface.get(), places->n(), places->x.data(), places->y.data(), values->data(), &fail);
            keep(values->data());
        };
        run();
        add("set up " + name + "/KOR",
            [build] {
                KorScatterRecord fresh;
                build(fresh);
                keep(fresh.x[0]);
                e01szc(&fresh);
            },
            {.items = static_cast<double>(m)});
        add("values of " + name + "/KOR", run, {.error = places->error(*values), .items = n});
    }
}

const bool registered = [] {
    for (const int m : {20, 100, 300}) grid(m);
    for (const int m : {1000, 10000}) scattered(m);
    return true;
}();

} // namespace
