// The Cholesky factorisation: factors of random and of graded matrices, refusals, and what is left alone.
#include "linalg/reference.hpp"

#include <kor/f07.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

// B'B + I, graded by powers of two: condition up to 2^(8 n) in the plain sense, harmless to Cholesky.
Dense positive_definite(Integer n, Integer grading, Random &random)
{
    const Dense b = general<double>(n, n, n, random).dense();
    Dense a = op(Transpose, b) * b + identity(n);
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j < n; ++j) a(i, j) = static_cast<double>(std::ldexp(a(i, j).real(), -grading * (i + j)));
    return a;
}

TEST(Cholesky, FactorsReproduceTheMatrix)
{
    Random random;
    for (const Integer n : {0, 1, 2, 3, 4, 7, 8, 9, 16, 17, 33, 70})
        for (const Integer uplo : kTriangles)
            for (const Integer grading : {0, 3}) {
                const Integer tda = n + 2;
                const Dense A = positive_definite(n, grading, random);
                Stored<double> a{n, n, static_cast<std::size_t>(n) * tda, triangle(uplo, tda), random};
                for (Integer i = 0; i < n; ++i)
                    for (Integer j = 0; j < n; ++j)
                        if (in_triangle(uplo, i, j)) a.array[i * tda + j] = static_cast<double>(A(i, j).real());
                const auto before = a.array;
                Record fail;
                f07fdc(uplo, n, a.data(), tda, &fail);
                EXPECT_SUCCESS(fail);
                const Dense F = a.dense(),
                            product = uplo == UpperTriangle ? op(Transpose, F) * F : F * op(Transpose, F);
                for (Integer i = 0; i < n; ++i)
                    for (Integer j = 0; j < n; ++j) {
                        ASSERT_LE(std::abs(product(i, j) - A(i, j)),
                                  2 * (n + 2) * kEps * std::sqrt(A(i, i).real() * A(j, j).real()));
                        if (!in_triangle(uplo, i, j)) {
                            ASSERT_TRUE(std::isnan(a.array[i * tda + j]));
                        }
                    }
                for (Integer i = 0; i < n; ++i) ASSERT_GT(F(i, i).real(), 0.0L);
            }
}

TEST(Cholesky, PivotsFarApart)
{
    // An element divided by its pivot would overflow; divided by the root it does not.
    for (const Integer uplo : kTriangles) {
        double a[] = {0x1p-1060, 0x1p-32, 0x1p-32, 0x1p1000};
        Record fail;
        f07fdc(uplo, 2, a, 2, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_EQ(a[0], 0x1p-530);
        EXPECT_EQ(a[uplo == UpperTriangle ? 1 : 2], 0x1p498);
        EXPECT_EQ(a[3], 0x1p498 * std::sqrt(15.0));
    }
}

TEST(Cholesky, TellsTheMinorThatIsNotPositive)
{
    for (const Integer n : {1, 2, 5, 12, 40, 100})
        for (const Integer uplo : kTriangles)
            for (const double bad : {0.0, -1.0, kNan, -std::numeric_limits<double>::infinity()}) {
                const Integer at = n - n / 3 - 1;
                std::vector<double> a(n * n, 0.0);
                for (Integer i = 0; i < n; ++i) a[i * n + i] = i == at ? bad : 2.0;
                Record fail;
                f07fdc(uplo, n, a.data(), n, &fail);
                EXPECT_REPORT(fail, NE_NOT_POS_DEF);
                EXPECT_EQ(fail.errnum, at + 1) << n << ", " << bad;
            }
    // A NaN beside the diagonal.
    double a[] = {2.0, kNan, 0.0, 3.0};
    Record fail;
    f07fdc(UpperTriangle, 2, a, 2, &fail);
    EXPECT_EQ(fail.code, NE_NOT_POS_DEF);
    EXPECT_EQ(fail.errnum, 2);
}

TEST(Cholesky, RefusesBadArguments)
{
    Record fail;
    double a[] = {4.0, 2.0, 2.0, 5.0};
    f07fdc(NoTranspose, -1, a, -2, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "uplo");
    f07fdc(LowerTriangle, -1, a, -2, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "0", "n", -1);
    f07fdc(LowerTriangle, 2, a, 1, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 1, "n", 2, "tda", "n");
    EXPECT_EQ(a[0], 4.0);
}

} // namespace
} // namespace kor::testing
