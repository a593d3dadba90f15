// Elementary reflections: the matrix H is formed explicitly, for data over the whole range of doubles.
#include <cfloat>

#include "linalg/reference.hpp"

namespace kor::testing {
namespace {

// H = I - gamma u conj(u)'
Dense reflection(const Dense &u, Z gamma) { return identity(u.m) + -gamma * (u * op(ConjugateTranspose, u)); }

template <class T>
Dense stacked(T first, const Stored<T> &rest, Integer n)
{
    Dense v{n + 1, 1};
    v(0, 0) = wide(first);
    const Dense x = rest.dense();
    for (Integer i = 0; i < n; ++i) v(i + 1, 0) = x(i, 0);
    v.measure();
    return v;
}
long double norm(const Dense &v)
{
    long double sum = 0.0;
    for (const Z z : v.value) sum += std::norm(z);
    return std::sqrt(sum);
}

// H is unitary and takes v to (beta, 0).
void expect_reflects(const Dense &H, const Dense &v, long double beta, const std::string &what)
{
    EXPECT_LE(norm(H * op(ConjugateTranspose, H) + Z{-1.0L} * identity(H.m)), 40 * kEps) << what;
    Dense result = H * v;
    result(0, 0) -= beta;
    EXPECT_LE(norm(result), 20 * kEps * norm(v) + 8 * H.m * DBL_TRUE_MIN) << what;
}

constexpr double kScales[] = {1.0, 1e-160, 1e160, 2e307, 0x1p-1000, 0x1p-1062};

TEST(Reflection, RealTakesAVectorIntoItsFirstElement)
{
    Random random;
    for (const auto make : {f06frc, f06fsc})
        for (const double scale : kScales)
            for (const Integer n : {1, 2, 5, 30})
                for (const Integer incx : {1, -2})
                    for (const double ratio : {0.0, -1.0, 1e-10, 1e10}) {
                        if (scale < 1e-310 && std::fabs(ratio) > 1.0) continue; // x would be 0
                        Stored<double> x = vector<double>(n, incx, random);
                        const double weight = std::fabs(ratio) > 1.0 ? 1.0 / std::fabs(ratio) : 1.0;
                        for (double &a : x.array) a *= scale * weight * 0.15;
                        double alpha = ratio * weight * scale * 0.5, zeta = -9.0;
                        const Dense v = stacked(alpha, x, n);
                        const double old = alpha;
                        make(n, &alpha, x.data(), incx, -1.0, &zeta);
                        EXPECT_TRUE(zeta >= 1.0 && zeta <= std::sqrt(2.0) * (1 + kEps)) << zeta;
                        EXPECT_EQ(std::signbit(alpha), !std::signbit(old)) << "beta has the sign opposite to alpha's";
                        expect_reflects(reflection(stacked(zeta, x, n), 1.0L), v, alpha,
                                        "scale " + std::to_string(scale) + " ratio " + std::to_string(ratio));
                    }
}

TEST(Reflection, ToleranceDecidesWhatCountsAsZero)
{
    const auto zeta_of = [](double alpha, double x, double tol) {
        double zeta, a = alpha, y[] = {0.0, x};
        f06frc(2, &a, y, 1, tol, &zeta);
        if (zeta == 0.0) {
            EXPECT_TRUE(a == alpha && y[1] == x && y[0] == 0.0) << "H = I leaves everything";
        }
        return zeta;
    };
    EXPECT_EQ(zeta_of(1.0, 1e-17, 0.0), 0.0) << "a rounding error of alpha";
    EXPECT_GT(zeta_of(1.0, 2e-16, 0.0), 1.0);
    EXPECT_EQ(zeta_of(1.0, 2e-16, 1e-3), 0.0);
    EXPECT_EQ(zeta_of(1.0, 1e-3, 1e-3), 0.0);
    EXPECT_GT(zeta_of(1.0, 1.1e-3, 1e-3), 1.0);
    EXPECT_EQ(zeta_of(0.0, 0.0, 0.0), 0.0);
    EXPECT_GE(zeta_of(0.0, 1e-300, 0.0), 1.0);
    EXPECT_TRUE(std::isnan(zeta_of(1.0, kNan, 0.5))) << "a NaN is not negligible";
    double alpha = 2.0, zeta = 9.0;
    f06frc(0, &alpha, nullptr, 1, 0.0, &zeta);
    EXPECT_EQ(zeta, 0.0);
}

TEST(Reflection, AppliedInEitherOrderOfArguments)
{
    Random random;
    for (const Integer n : {0, 1, 4, 20})
        for (const Integer inc : {1, -3}) {
            double alpha = random.uniform(), zeta, delta = random.uniform();
            Stored<double> z = vector<double>(n, inc, random), y = vector<double>(n, 2, random), y2 = y;
            f06frc(n, &alpha, z.data(), inc, 0.0, &zeta);
            const Dense expected = reflection(stacked(zeta, z, n), 1.0L) * stacked(delta, y, n);
            double delta2 = delta;
            f06ftc(n, &delta, y.data(), 2, zeta, z.data(), inc);
            f06fuc(n, z.data(), inc, zeta, &delta2, y2.data(), 2);
            EXPECT_EQ(delta, delta2);
            EXPECT_TRUE(same_bits(y.array, y2.array));
            EXPECT_LE(norm(stacked(delta, y, n) + Z{-1.0L} * expected), 20 * kEps * norm(expected));
        }
    double delta = 3.0, y = 4.0, z = kNan;
    f06ftc(1, &delta, &y, 1, 0.0, &z, 1);
    EXPECT_TRUE(delta == 3.0 && y == 4.0) << "zeta = 0: H = I, z is not read";
}

TEST(Reflection, ComplexTakesAVectorIntoARealElement)
{
    Random random;
    for (const double scale : kScales)
        for (const Integer n : {0, 1, 2, 5, 30})
            for (const Integer incx : {1, -2})
                for (const Z first : {Z{0.0L, 0.0L}, Z{0.5L, 0.0L}, Z{-0.3L, 0.4L}, Z{0.0L, 0.7L}, Z{1e-12L, -1e-3L},
                                      Z{-0.5L, 1e-14L}}) {
                    Stored<Complex> x = vector<Complex>(n, incx, random);
                    for (Complex &a : x.array) a = {a.re * scale * 0.1, a.im * scale * 0.1};
                    Complex alpha = narrowed<Complex>(first * static_cast<long double>(scale)), theta{-9.0, -9.0};
                    const Dense v = stacked(alpha, x, n);
                    f06hrc(n, &alpha, x.data(), incx, 0.0, &theta);
                    if (n == 0 && v(0, 0).imag() == 0.0L) {
                        EXPECT_EQ(wide(theta), Z{});
                        continue;
                    }
                    EXPECT_TRUE(theta.re >= 1.0 && theta.re <= std::sqrt(2.0) * (1 + kEps)) << theta.re;
                    EXPECT_EQ(alpha.im, 0.0);
                    expect_reflects(reflection(stacked(Complex{theta.re, 0.0}, x, n), Z{1.0L, theta.im}), v, alpha.re,
                                    "scale " + std::to_string(scale));
                }
    // A negligible vector with a complex first element: the vector is cleared, the element made real.
    Complex alpha{3.0, 4.0}, theta, x[] = {{1e-20, 0.0}};
    f06hrc(1, &alpha, x, 1, 0.0, &theta);
    EXPECT_EQ(wide(alpha), Z{-5.0L});
    EXPECT_EQ(wide(x[0]), Z{});
    EXPECT_LE(std::abs(Z{1.0L} - Z{1.0L, theta.im} * static_cast<long double>(theta.re * theta.re) -
                       Z{-5.0L} / Z{3.0L, 4.0L}),
              4 * kEps);
}

} // namespace
} // namespace kor::testing
