#include "support/expect_report.hpp"
#include <cmath>
#include <gtest/gtest.h>
#include <kor/e01.h>
#include <kor/e02.h>
#include <kor/x04.h>
TEST(Smoke, One)
{
    kor::testing::Record fail;
    double x[5] = {0, 1, 2, 4, 5}, y[5] = {0, 1, 8, 64, 125}, s;
    KorSpline spline;
    e01bac(5, x, y, &spline, &fail);
    EXPECT_SUCCESS(fail);
    e02bbc(3.0, &s, &spline, &fail);
    EXPECT_DOUBLE_EQ(s, 27.0);
    double d[4];
    e02bcc(Kor_LeftDerivs, 5.0, d, &spline, &fail);
    EXPECT_NEAR(d[3], 6.0, 1e-12);
    EXPECT_NEAR(d[1], 75.0, 1e-12);
    double in;
    e02bdc(&in, &spline, &fail);
    EXPECT_NEAR(in, 625.0 / 4, 1e-12);
    double xx[5] = {0, 1, 2, 3, 4}, yy[5] = {1, 2, 5, 10, 17}, w[5] = {1, 1, 1, 1, 1}, a[9], ss[3];
    e02adc(5, 3, 3, xx, yy, w, a, ss, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(a[6], 14, 1e-13);
    EXPECT_NEAR(a[7], 8, 1e-13);
    EXPECT_NEAR(a[8], 2, 1e-13);
    double f[3] = {1, 0, 1};
    e02afc(3, f, a, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(a[0], 1, 1e-15);
    EXPECT_NEAR(a[2], .5, 1e-15);
}
