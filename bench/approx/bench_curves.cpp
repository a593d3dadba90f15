// Splines and monotone cubics in one variable beside GSL, Boost and Eigen.
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
#include <gsl/gsl_bspline.h>
#include <gsl/gsl_chebyshev.h>
#include <gsl/gsl_multifit.h>
#include <gsl/gsl_spline.h>
#endif
#ifdef KOR_HAVE_BOOST
#include <boost/math/interpolators/pchip.hpp>
#endif
#ifdef KOR_HAVE_EIGEN
#include <unsupported/Eigen/Splines>
#endif

namespace {

const kor::bench::Heading heading{"Curves, time a point",
                                  "largest error against the function, or against the cubic fitted"};

double wave(double x) { return std::sin(x) + 0.3 * std::cos(3.0 * x); }

struct Data {
    std::vector<double> x, y, w, at;
    std::vector<double> anywhere; // more points than a predictor of branches can know by heart
    explicit Data(int m)
    {
        std::mt19937_64 random{31};
        std::uniform_real_distribution<double> uniform;
        for (int i = 0; i < m; ++i) {
            x.push_back(10.0 * (i + 0.4 * uniform(random)) / m);
            y.push_back(wave(x[i]));
            w.push_back(1.0);
        }
        for (int i = 0; i < m; ++i) at.push_back(x[0] + (x[m - 1] - x[0]) * uniform(random));
        at[0] = x[0];
        for (int i = 0; i < std::max(m, 20000); ++i) anywhere.push_back(x[0] + (x[m - 1] - x[0]) * uniform(random));
    }
    Integer m() const { return static_cast<Integer>(x.size()); }
    // Away from the ends, where conditions differ.
    template <class Curve>
    double error(Curve curve) const
    {
        double worst = 0.0;
        for (const double p : at)
            if (p > 1.0 && p < 9.0) worst = std::max(worst, std::fabs(curve(p) - wave(p)));
        return worst;
    }
};
using Shared = std::shared_ptr<const Data>;

void release(KorSpline &spline)
{
    x04bdc(reinterpret_cast<void **>(&spline.lamda));
    x04bdc(reinterpret_cast<void **>(&spline.c));
}

double value(const KorSpline &spline, double x)
{
    static KorError fail{};
    double s;
    e02bbc(x, &s, &spline, &fail);
    return s;
}

void interpolation(const Shared &data)
{
    using namespace kor::bench;
    const std::string size = ", m = " + std::to_string(data->m());
    const auto items = static_cast<double>(data->m()), evaluations = static_cast<double>(data->anywhere.size());
    const auto spline = std::make_shared<KorSpline>();
    KorError fail{};
    e01bac(data->m(), data->x.data(), data->y.data(), spline.get(), &fail);
    const double error = data->error([&](double p) { return value(*spline, p); });
    add("spline through points" + size + "/KOR",
        [data] {
            KorSpline fresh;
            KorError quiet{};
            e01bac(data->m(), data->x.data(), data->y.data(), &fresh, &quiet);
            keep(fresh.c[0]);
            release(fresh);
        },
        {.error = error, .items = items});
    add("values of a spline" + size + "/KOR",
        [data, spline] {
            double sum = 0.0;
            for (const double p : data->anywhere) sum += value(*spline, p);
            keep(sum);
        },
        {.error = error, .items = evaluations});
#ifdef KOR_HAVE_GSL
    const std::shared_ptr<gsl_spline> peer{gsl_spline_alloc(gsl_interp_cspline, data->x.size()), gsl_spline_free};
    gsl_spline_init(peer.get(), data->x.data(), data->y.data(), data->x.size());
    const double peer_error = data->error([&](double p) { return gsl_spline_eval(peer.get(), p, nullptr); });
    add("spline through points" + size + "/GSL",
        [data] {
            gsl_spline *fresh = gsl_spline_alloc(gsl_interp_cspline, data->x.size());
            gsl_spline_init(fresh, data->x.data(), data->y.data(), data->x.size());
            keep(fresh);
            gsl_spline_free(fresh);
        },
        {.error = peer_error, .items = items});
    add("values of a spline" + size + "/GSL",
        [data, peer] {
            double sum = 0.0;
            for (const double p : data->anywhere) sum += gsl_spline_eval(peer.get(), p, nullptr);
            keep(sum);
        },
        {.error = peer_error, .items = evaluations});
#endif
#ifdef KOR_HAVE_EIGEN
    using EigenSpline = Eigen::Spline<double, 1, 3>;
    if (data->m() <= 1000) { // it solves dense equations
        const Eigen::RowVectorXd points = Eigen::Map<const Eigen::RowVectorXd>(data->y.data(), data->m());
        const double first = data->x.front(), length = data->x.back() - first;
        const Eigen::RowVectorXd places =
            (Eigen::Map<const Eigen::RowVectorXd>(data->x.data(), data->m()).array() - first) / length;
        const auto fit = [points, places] { return Eigen::SplineFitting<EigenSpline>::Interpolate(points, 3, places); };
        const EigenSpline curve = fit();
        const double eigen_error = data->error([&](double p) { return curve((p - first) / length)(0); });
        add("spline through points" + size + "/Eigen", [fit] { keep(fit()); }, {.error = eigen_error, .items = items});
        add("values of a spline" + size + "/Eigen",
            [data, curve, first, length] {
                double sum = 0.0;
                for (const double p : data->anywhere) sum += curve((p - first) / length)(0);
                keep(sum);
            },
            {.error = eigen_error, .items = evaluations});
    }
#endif
}

void monotone(const Shared &data)
{
    using namespace kor::bench;
    const std::string size = ", m = " + std::to_string(data->m());
    const auto items = static_cast<double>(data->anywhere.size());
    const auto values = std::make_shared<std::vector<double>>(data->anywhere.size());
    const auto run = [data, values] {
        KorError fail{};
        std::vector<double> d(data->x.size());
        e01bec(data->m(), data->x.data(), data->y.data(), d.data(), &fail);
        e01bfc(data->m(), data->x.data(), data->y.data(), d.data(), static_cast<Integer>(data->anywhere.size()),
               data->anywhere.data(), values->data(), &fail);
        keep(values->data());
    };
    run();
    std::size_t k = 0;
    double worst = 0.0;
    for (const double p : data->anywhere) {
        if (p > 1.0 && p < 9.0) worst = std::max(worst, std::fabs((*values)[k] - wave(p)));
        ++k;
    }
    add("monotone cubic, set up and evaluated" + size + "/KOR", run, {.error = worst, .items = items});
#ifdef KOR_HAVE_GSL
    const auto steffen = [data](auto use) {
        gsl_spline *fresh = gsl_spline_alloc(gsl_interp_steffen, data->x.size());
        gsl_spline_init(fresh, data->x.data(), data->y.data(), data->x.size());
        use(fresh);
        gsl_spline_free(fresh);
    };
    double peer_error = 0.0;
    steffen([&](gsl_spline *s) { peer_error = data->error([s](double p) { return gsl_spline_eval(s, p, nullptr); }); });
    add("monotone cubic, set up and evaluated" + size + "/GSL, Steffen",
        [data, steffen] {
            steffen([&](gsl_spline *s) {
                double sum = 0.0;
                for (const double p : data->anywhere) sum += gsl_spline_eval(s, p, nullptr);
                keep(sum);
            });
        },
        {.error = peer_error, .items = items});
#endif
#ifdef KOR_HAVE_BOOST
    const auto make = [data] {
        auto x = data->x, y = data->y;
        return boost::math::interpolators::pchip<std::vector<double>>(std::move(x), std::move(y));
    };
    const auto curve = make();
    add("monotone cubic, set up and evaluated" + size + "/Boost",
        [data, make] {
            const auto fresh = make();
            double sum = 0.0;
            for (const double p : data->anywhere) sum += fresh(p);
            keep(sum);
        },
        {.error = data->error([&](double p) { return curve(p); }), .items = items});
#endif
}

void least_squares(const Shared &data, int interior)
{
    using namespace kor::bench;
    const std::string work =
        "least squares, m = " + std::to_string(data->m()) + ", " + std::to_string(interior) + " knots";
    const auto items = static_cast<double>(data->m());
    const auto fit = [data, interior](KorSpline &spline, std::vector<double> &knots) {
        knots.assign(interior + 8, 0.0);
        const double first = data->x.front(), last = data->x.back();
        for (int j = 0; j < interior; ++j) knots[4 + j] = first + (last - first) * (j + 1) / (interior + 1);
        spline = {interior + 8, knots.data(), nullptr};
        double ss;
        KorError fail{};
        e02bac(data->m(), data->x.data(), data->y.data(), data->w.data(), &ss, &spline, &fail);
    };
    KorSpline spline;
    std::vector<double> knots;
    fit(spline, knots);
    const double error = data->error([&](double p) { return value(spline, p); });
    x04bdc(reinterpret_cast<void **>(&spline.c));
    add(work + "/KOR",
        [fit] {
            KorSpline fresh;
            std::vector<double> t;
            fit(fresh, t);
            keep(fresh.c[0]);
            x04bdc(reinterpret_cast<void **>(&fresh.c));
        },
        {.error = error, .items = items});
#ifdef KOR_HAVE_GSL
    if (static_cast<double>(data->m()) * interior <= 3e5) { // its matrix is dense
        const auto peer = [data, interior] {
            const std::size_t m = data->x.size(), n = interior + 4;
            gsl_bspline_workspace *b = gsl_bspline_alloc(4, interior + 2);
            gsl_bspline_knots_uniform(data->x.front(), data->x.back(), b);
            gsl_vector *row = gsl_vector_alloc(n), *c = gsl_vector_alloc(n), *y = gsl_vector_alloc(m);
            gsl_matrix *a = gsl_matrix_alloc(m, n), *covariance = gsl_matrix_alloc(n, n);
            for (std::size_t i = 0; i < m; ++i) {
                gsl_bspline_eval(data->x[i], row, b);
                gsl_matrix_set_row(a, i, row);
                gsl_vector_set(y, i, data->y[i]);
            }
            gsl_multifit_linear_workspace *work_space = gsl_multifit_linear_alloc(m, n);
            double chisq;
            gsl_multifit_linear(a, y, c, covariance, &chisq, work_space);
            const double error_at = data->error([&](double p) {
                gsl_bspline_eval(p, row, b);
                double sum = 0.0;
                for (std::size_t j = 0; j < n; ++j) sum += gsl_vector_get(row, j) * gsl_vector_get(c, j);
                return sum;
            });
            gsl_multifit_linear_free(work_space);
            gsl_matrix_free(a);
            gsl_matrix_free(covariance);
            gsl_vector_free(row);
            gsl_vector_free(c);
            gsl_vector_free(y);
            gsl_bspline_free(b);
            return error_at;
        };
        add(work + "/GSL", [peer] { keep(peer()); }, {.error = peer(), .items = items});
    }
#endif
}

void series()
{
    using namespace kor::bench;
    constexpr int n = 40, points = 1000;
    const auto data = std::make_shared<Data>(points);
    const auto a = std::make_shared<std::vector<double>>();
    for (int j = 0; j <= n; ++j) a->push_back(1.0 / (1 + j * j));
    const auto direct = [a](double x) {
        long double sum = (*a)[0] / 2.0L;
        for (int j = 1; j <= n; ++j) sum += (*a)[j] * std::cos(j * std::acos(static_cast<long double>(x)));
        return static_cast<double>(sum);
    };
    const auto ours = [a](double x) {
        static KorError fail{};
        double p;
        e02aec(n + 1, a->data(), x, &p, &fail);
        return p;
    };
    const auto worst = [&](auto f) {
        double w = 0.0;
        for (const double p : data->at) w = std::max(w, std::fabs(f(p / 5.0 - 1.0) - direct(p / 5.0 - 1.0)));
        return w;
    };
    add("Chebyshev series of degree 40/KOR",
        [data, ours] {
            double sum = 0.0;
            for (const double p : data->at) sum += ours(p / 5.0 - 1.0);
            keep(sum);
        },
        {.error = worst(ours), .items = points});
#ifdef KOR_HAVE_GSL
    const std::shared_ptr<gsl_cheb_series> peer{gsl_cheb_alloc(n), gsl_cheb_free};
    peer->a = -1.0;
    peer->b = 1.0;
    std::copy(a->begin(), a->end(), peer->c);
    add("Chebyshev series of degree 40/GSL",
        [data, peer] {
            double sum = 0.0;
            for (const double p : data->at) sum += gsl_cheb_eval(peer.get(), p / 5.0 - 1.0);
            keep(sum);
        },
        {.error = worst([&](double x) { return gsl_cheb_eval(peer.get(), x); }), .items = points});
#endif
}

const bool registered = [] {
    for (const int m : {20, 1000, 100000}) {
        const auto data = std::make_shared<Data>(m);
        interpolation(data);
        monotone(data);
    }
    least_squares(std::make_shared<Data>(1000), 20);
    least_squares(std::make_shared<Data>(100000), 200);
    series();
    return true;
}();

} // namespace
