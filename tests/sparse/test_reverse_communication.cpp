// Reverse communication for symmetric systems: the protocol, the norms, the estimates.
#include <cmath>
#include <functional>
#include <limits>
#include <numbers>

#include "sparse/matrices.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

struct Rules {
    Integer method = Kor_SparseSym_CG, precon = Kor_SparseSym_NoPrec, sigcmp = Kor_SparseSym_NoBisect,
            norm = Kor_SparseSym_InfNorm, weight = Kor_SparseSym_UnWeighted, iterm = Kor_SparseSym_TermLanczosCG;
    Integer n = 2;
    double tol = 1e-10;
    Integer maxitn = 500;
    double anorm = 0.0, sigmax = 0.0, sigtol = 0.01;
    Integer maxits = 50;

    Record start(KorSparseSymState &state) const
    {
        Record fail;
        f11gac(method, precon, sigcmp, norm, weight, iterm, n, tol, maxitn, anorm, sigmax, sigtol, maxits, &state,
               &fail);
        return fail;
    }
};

struct Monitor {
    Integer itn = -9, sigma_itn = -9;
    double lhs = -9.0, rhs = -9.0, anorm = -9.0, sigmax = -9.0, sigma_err = -9.0;
    Record fail{};

    explicit Monitor(KorSparseSymState &state)
    {
        f11gcc(&itn, &lhs, &rhs, &anorm, &sigmax, &sigma_itn, &sigma_err, &state, &fail);
    }
};

// A dense matrix, a diagonal preconditioner, and the iteration with them.
struct System {
    Dense a;
    std::vector<double> b, diagonal, weights;
    std::vector<double> u, v;
    Integer products = 0;
    double (*rounding)(double) = nullptr;

    System(Integer n, const Elements &lower) : a{dense(n, lower, true)}
    {
        for (Integer i = 0; i < n; ++i) {
            b.push_back(std::sin(0.7 * i) + 0.3);
            diagonal.push_back(1.0 + 0.5 * std::cos(2.0 * i));
            weights.push_back(std::exp(std::sin(3.0 * i)));
        }
    }
    std::vector<double> product(const std::vector<double> &x) const
    {
        std::vector<double> y(x.size(), 0.0);
        for (std::size_t i = 0; i < x.size(); ++i)
            for (std::size_t j = 0; j < x.size(); ++j) y[i] += a[i][j] * x[j];
        return y;
    }
    Record step(Integer &irevcm, KorSparseSymState &state)
    {
        Record fail;
        f11gbc(&irevcm, u.data(), v.data(), weights.data(), &state, &fail);
        return fail;
    }
    void answer(Integer irevcm)
    {
        if (irevcm == 1) {
            v = product(u);
            ++products;
            if (rounding != nullptr)
                for (double &e : v) e = rounding(e);
        }
        if (irevcm == 2)
            for (std::size_t i = 0; i < u.size(); ++i) v[i] = u[i] / diagonal[i];
        // What the library has handed out is the caller's to spoil.
        std::fill(u.begin(), u.end(), std::numeric_limits<double>::quiet_NaN());
    }
    // To the end, or until `look` at the monitor says stop with its value.
    Record run(KorSparseSymState &state, const std::function<Integer()> &look = {})
    {
        u.assign(b.size(), 0.0);
        v = b;
        Integer irevcm = 0;
        for (;;) {
            const Record fail = step(irevcm, state);
            if (irevcm == 4 || fail.code != NE_NOERROR) return fail;
            if (irevcm != 3)
                answer(irevcm);
            else if (const Integer wish = look ? look() : 0; wish != 0)
                irevcm = wish;
        }
    }
    double norm(const std::vector<double> &x, Integer kind, bool weighted) const
    {
        double sum = 0.0, greatest = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double e = std::abs(x[i]) * (weighted ? weights[i] : 1.0);
            greatest = std::max(greatest, e);
            sum += kind == Kor_SparseSym_TwoNorm ? e * e : e;
        }
        return kind == Kor_SparseSym_InfNorm ? greatest : kind == Kor_SparseSym_OneNorm ? sum : std::sqrt(sum);
    }
};

constexpr Integer kSide = 7, kOrder = kSide * kSide;
// The extreme eigenvalues of the five-point grid.
const double kLargest = 8.0 * std::pow(std::cos(std::numbers::pi / (2 * (kSide + 1))), 2);

TEST(ReverseCommunication, StopsByTheNormThatIsChosen)
{
    System system{kOrder, lower_triangle(grid(kSide))};
    for (const Integer method : {Kor_SparseSym_CG, Kor_SparseSym_Lanczos})
        for (const Integer precon : {Kor_SparseSym_NoPrec, Kor_SparseSym_Prec})
            for (const Integer norm : {Kor_SparseSym_OneNorm, Kor_SparseSym_TwoNorm, Kor_SparseSym_InfNorm})
                for (const Integer weight : {Kor_SparseSym_UnWeighted, Kor_SparseSym_Weighted}) {
                    const bool weighted = weight == Kor_SparseSym_Weighted;
                    const Rules setup{.method = method, .precon = precon, .norm = norm, .weight = weight, .n = kOrder};
                    KorSparseSymState state;
                    EXPECT_SUCCESS(setup.start(state));
                    double last = HUGE_VAL;
                    Integer looks = 0;
                    EXPECT_SUCCESS(system.run(state, [&] {
                        // The present solution and its residual belong to each other, and to what is reported.
                        const Monitor now{state};
                        std::vector<double> r = system.product(system.u);
                        for (std::size_t i = 0; i < r.size(); ++i) {
                            r[i] = system.b[i] - r[i];
                            EXPECT_NEAR(r[i], system.v[i], 1e-13);
                        }
                        EXPECT_NEAR(now.lhs, system.norm(r, norm, weighted), 1e-11);
                        EXPECT_EQ(now.itn, ++looks);
                        last = now.lhs;
                        return 0;
                    }));
                    const Monitor end{state};
                    EXPECT_LE(end.lhs, end.rhs);
                    EXPECT_LT(end.lhs, last);
                    EXPECT_NEAR(end.lhs, system.norm(system.v, norm, weighted), 1e-14);
                    EXPECT_NEAR(end.rhs,
                                1e-10 * (end.anorm * system.norm(system.u, norm, weighted) +
                                         system.norm(system.b, norm, weighted)),
                                1e-22);
                    // The norm of A: its greatest row or column sum, with weights that of W A W^-1.
                    double by_rows = 0.0, by_columns = 0.0;
                    for (std::size_t i = 0; i < system.b.size(); ++i) {
                        double row = 0.0, column = 0.0;
                        for (std::size_t j = 0; j < system.b.size(); ++j) {
                            const double ratio = weighted ? system.weights[i] / system.weights[j] : 1.0;
                            row += std::abs(system.a[i][j]) * ratio;
                            column += std::abs(system.a[i][j]) / ratio;
                        }
                        by_rows = std::max(by_rows, row);
                        by_columns = std::max(by_columns, column);
                    }
                    const double expected = norm == Kor_SparseSym_OneNorm   ? by_columns
                                            : norm == Kor_SparseSym_InfNorm ? by_rows
                                                                            : std::sqrt(by_rows * by_columns);
                    EXPECT_NEAR(end.anorm, expected, 1e-14 * expected);
                }
}

TEST(ReverseCommunication, EstimatesTheLargestSingularValue)
{
    System system{kOrder, lower_triangle(grid(kSide))};
    for (const Integer method : {Kor_SparseSym_CG, Kor_SparseSym_Lanczos})
        for (const double sigtol : {0.1, 1e-3, 1e-6}) {
            Rules setup{.method = method, .sigcmp = Kor_SparseSym_Bisect, .n = kOrder, .anorm = 8.0, .sigtol = sigtol};
            KorSparseSymState state;
            EXPECT_SUCCESS(setup.start(state));
            EXPECT_SUCCESS(system.run(state));
            const Monitor end{state};
            EXPECT_LE(end.sigmax, kLargest * (1.0 + 0.25 * sigtol));
            // Steps that no longer change much may still add up.
            EXPECT_GE(end.sigmax, kLargest * (1.0 - 5.0 * sigtol)) << method << " " << sigtol;
            EXPECT_LE(end.sigma_err, sigtol);
            EXPECT_LE(end.sigma_itn, end.itn);
            setup.maxits = 3;
            EXPECT_SUCCESS(setup.start(state));
            EXPECT_SUCCESS(system.run(state));
            EXPECT_LE(Monitor{state}.sigma_itn, 3);
        }
    // Of an indefinite matrix the greatest modulus of an eigenvalue, whatever its sign.
    Elements lower = lower_triangle(grid(kSide));
    for (auto &[place, value] : lower) value = place.first == place.second ? 4.5 - value - 4.0 : -value;
    System negative{kOrder, lower};
    const Rules setup{.method = Kor_SparseSym_Lanczos, .sigcmp = Kor_SparseSym_Bisect, .n = kOrder, .sigtol = 1e-6};
    KorSparseSymState state;
    EXPECT_SUCCESS(setup.start(state));
    EXPECT_SUCCESS(negative.run(state));
    EXPECT_NEAR(Monitor{state}.sigmax, kLargest - 0.5, 1e-4);
}

TEST(ReverseCommunication, TestsTheTransformedResidual)
{
    System system{kOrder, lower_triangle(grid(kSide))};
    for (const Integer precon : {Kor_SparseSym_NoPrec, Kor_SparseSym_Prec})
        for (const bool given : {false, true}) {
            const Rules setup{.method = Kor_SparseSym_Lanczos,
                              .precon = precon,
                              .sigcmp = given ? Kor_SparseSym_NoBisect : Kor_SparseSym_Bisect,
                              .iterm = Kor_SparseSym_TermLanczos,
                              .n = kOrder,
                              .tol = 1e-9,
                              .sigmax = given ? kLargest : 0.0};
            KorSparseSymState state;
            EXPECT_SUCCESS(setup.start(state));
            EXPECT_SUCCESS(system.run(state));
            const Monitor end{state};
            double residual = 0.0, start = 0.0, moved = 0.0;
            for (std::size_t i = 0; i < system.b.size(); ++i) {
                const double m = precon == Kor_SparseSym_Prec ? system.diagonal[i] : 1.0;
                residual += system.v[i] * system.v[i] / m;
                start += system.b[i] * system.b[i] / m;
                moved += system.u[i] * system.u[i] * m;
            }
            EXPECT_NEAR(end.lhs, std::sqrt(residual), 1e-14);
            EXPECT_NEAR(end.rhs, 1e-9 * (std::sqrt(start) + end.sigmax * std::sqrt(moved)), 1e-9 * end.rhs);
            EXPECT_LE(end.lhs, 10.0 * end.rhs);
            EXPECT_EQ(end.anorm, 0.0); // not needed, not estimated
        }
}

TEST(ReverseCommunication, MayBeStoppedAndStartedAgain)
{
    System system{kOrder, lower_triangle(grid(kSide))};
    for (const Integer method : {Kor_SparseSym_CG, Kor_SparseSym_Lanczos}) {
        const Rules setup{.method = method, .n = kOrder, .anorm = 8.0};
        KorSparseSymState state;
        EXPECT_SUCCESS(setup.start(state));
        Integer looks = 0;
        std::vector<double> seen;
        EXPECT_SUCCESS(system.run(state, [&] {
            seen = system.u;
            return ++looks == 5 ? 5 : 0;
        }));
        EXPECT_EQ(system.u, seen);
        const std::vector<double> y = system.product(system.u);
        for (std::size_t i = 0; i < y.size(); ++i) EXPECT_NEAR(system.b[i] - y[i], system.v[i], 1e-13);
        EXPECT_EQ(Monitor{state}.itn, 5);
        Integer irevcm = 1; // the iteration is over
        EXPECT_REPORT(system.step(irevcm, state), NE_NO_SETUP, "f11gac");
        EXPECT_EQ(irevcm, 1);

        EXPECT_SUCCESS(setup.start(state));
        EXPECT_SUCCESS(system.run(state, [&] {
            std::fill(system.u.begin(), system.u.end(), 7.0);
            return 6;
        }));
        EXPECT_EQ(system.u, std::vector<double>(system.b.size(), 7.0));

        // A record that is still in use is taken over, an iteration that is under way begun anew.
        EXPECT_SUCCESS(setup.start(state));
        EXPECT_SUCCESS(setup.start(state));
        system.u.assign(system.b.size(), 0.0);
        system.v = system.b;
        irevcm = 0;
        EXPECT_SUCCESS(system.step(irevcm, state));
        EXPECT_SUCCESS(system.run(state));
        const Monitor end{state};
        EXPECT_LE(end.lhs, end.rhs);
    }
}

// Products in 34 bits: the iteration comes as far as they allow, and says so.
TEST(ReverseCommunication, TheLimitOfAccuracyIsReported)
{
    System system{kOrder, lower_triangle(grid(kSide))};
    system.rounding = [](double x) {
        int exponent;
        const double digits = std::frexp(x, &exponent);
        return std::ldexp(std::round(std::ldexp(digits, 34)), exponent - 34);
    };
    for (const Integer method : {Kor_SparseSym_CG, Kor_SparseSym_Lanczos}) {
        const Rules setup{.method = method, .n = kOrder, .tol = 1e-14, .maxitn = 5000, .anorm = 8.0};
        KorSparseSymState state;
        EXPECT_SUCCESS(setup.start(state));
        EXPECT_REPORT(system.run(state), NE_ACC_LIMIT);
        const Monitor end{state};
        EXPECT_LT(end.lhs / end.rhs * 1e-14, 1e-8);
        EXPECT_LT(end.itn, 1000);
    }
}

TEST(ReverseCommunication, TheMatrixAndThePreconditionerMustBeWhatTheMethodNeeds)
{
    System system{2, {{{1, 1}, 1.0}, {{2, 1}, 3.0}, {{2, 2}, 1.0}}};
    KorSparseSymState state;
    EXPECT_SUCCESS(Rules{}.start(state));
    EXPECT_REPORT(system.run(state), NE_COEFF_NOT_POS_DEF);
    for (const Integer method : {Kor_SparseSym_CG, Kor_SparseSym_Lanczos}) {
        const Rules setup{.method = method, .precon = Kor_SparseSym_Prec};
        EXPECT_SUCCESS(setup.start(state));
        system.diagonal = {-1.0, -1.0};
        EXPECT_REPORT(system.run(state), NE_PRECOND_NOT_POS_DEF);
        EXPECT_SUCCESS(setup.start(state));
        system.diagonal = {NAN, 1.0};
        EXPECT_REPORT(system.run(state), NE_NOT_REQ_ACC);
    }
}

TEST(ReverseCommunication, SaysWhatIsWrong)
{
    struct Case {
        Rules setup;
        Integer place;
        std::string text;
    };
    const Case cases[] = {
        {{.method = 0}, 1, message_of(NE_BAD_PARAM, "method")},
        {{.precon = Kor_SparseSym_JacPrec}, 2, message_of(NE_BAD_PARAM, "precon")},
        {{.sigcmp = 0}, 3, message_of(NE_BAD_PARAM, "sigcmp")},
        {{.norm = 0}, 4, message_of(NE_BAD_PARAM, "norm")},
        {{.weight = 0}, 5, message_of(NE_BAD_PARAM, "weight")},
        {{.iterm = 0}, 6, message_of(NE_BAD_PARAM, "iterm")},
        {{.iterm = Kor_SparseSym_TermLanczos},
         6,
         message_of(NE_ENUM_ENUM_ARG_CONS, "method", "Kor_SparseSym_CG", "iterm", "Kor_SparseSym_TermLanczos",
                    "iterm = Kor_SparseSym_TermLanczosCG if method = Kor_SparseSym_CG")},
        {{.n = 0}, 7, message_of(NE_INT_ARG_LT, "n", "1", "n", 0)},
        {{.tol = 1.0}, 8, message_of(NE_REAL_ARG_GE, "tol", "1.0", "tol", 1.0)},
        {{.maxitn = 0}, 9, message_of(NE_INT_ARG_LT, "maxitn", "1", "maxitn", 0)},
        {{.anorm = -1.0}, 10, message_of(NE_REAL_ARG_LT, "anorm", "0.0", "anorm", -1.0)},
        {{.sigmax = -1.0}, 11, message_of(NE_REAL_ARG_LT, "sigmax", "0.0", "sigmax", -1.0)},
        {{.method = Kor_SparseSym_Lanczos, .iterm = Kor_SparseSym_TermLanczos},
         11,
         message_of(NE_REAL_ENUM_ARG_CONS, "sigmax", 0.0, "sigcmp", "Kor_SparseSym_NoBisect",
                    "sigmax > 0.0 or sigcmp = Kor_SparseSym_Bisect if iterm = Kor_SparseSym_TermLanczos")},
        {{.sigcmp = Kor_SparseSym_Bisect, .sigtol = 1.0},
         12,
         message_of(NE_REAL_ARG_GE, "sigtol", "1.0", "sigtol", 1.0)},
        {{.sigcmp = Kor_SparseSym_Bisect, .maxits = 0}, 13, message_of(NE_INT_ARG_LT, "maxits", "1", "maxits", 0)},
    };
    for (const Case &c : cases) {
        KorSparseSymState state = {};
        const Record fail = c.setup.start(state);
        EXPECT_EQ(fail.message, c.text);
        EXPECT_EQ(fail.errnum, -c.place);
        EXPECT_REPORT(Monitor{state}.fail, NE_NO_SETUP, "f11gac");
    }

    System system{2, {{{1, 1}, 4.0}, {{2, 2}, 9.0}}};
    system.u = {0.0, 0.0};
    system.v = system.b;
    KorSparseSymState state = {};
    Integer irevcm = 0;
    EXPECT_REPORT(system.step(irevcm, state), NE_NO_SETUP, "f11gac");
    EXPECT_SUCCESS((Rules{.weight = Kor_SparseSym_Weighted}.start(state)));
    KorSparseSymState copy = state;
    EXPECT_REPORT(system.step(irevcm, copy), NE_NO_SETUP, "f11gac");
    EXPECT_REPORT(Monitor{copy}.fail, NE_NO_SETUP, "f11gac");
    system.weights = {1.0, 0.0};
    EXPECT_REPORT(system.step(irevcm, state), NE_REAL_ARRAY_CONS, "wgt", 1, 0.0, "wgt[i] > 0.0");
    system.weights = {1.0, 1.0};
    const char *const rule = "irevcm = 0, 5, 6 or the value that the last call has returned";
    for (const Integer wrong : {1, 4, 7, -1}) {
        irevcm = wrong;
        EXPECT_REPORT(system.step(irevcm, state), NE_INT, "irevcm", wrong, rule);
        EXPECT_EQ(irevcm, wrong);
    }
    irevcm = 0;
    EXPECT_SUCCESS(system.step(irevcm, state));
    EXPECT_EQ(irevcm, 1);
    irevcm = 6;
    EXPECT_SUCCESS(system.step(irevcm, state));
    EXPECT_EQ(irevcm, 4);
}

} // namespace
} // namespace kor::testing
