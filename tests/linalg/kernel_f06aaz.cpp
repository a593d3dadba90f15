// The reports of illegal arguments: what is written where, and that control comes back.
#include <string>

#include <gtest/gtest.h>

#include "linalg/arguments.hpp"

namespace kor::linalg {
namespace {

TEST(IllegalArgument, PublicAndKernelReports)
{
    ::testing::internal::CaptureStderr();
    f06aaz("f06pac/dgemv", 11);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Error detected by KOR routine f06pac/dgemv:\nNE_F06_BAD_PARAM:\n  On entry, parameter number 11 had an "
              "illegal value.\n");

    ::testing::internal::CaptureStderr();
    f06aaz_f("F06PAF/DGEMV", 6);
    const std::string text = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(text.substr(0, text.find('\n')),
              " ** On entry to  F06PAF/DGEMV parameter number  6 had an illegal value");
}

TEST(IllegalArgument, OnlyTheFirstIsTold)
{
    ::testing::internal::CaptureStderr();
    EXPECT_FALSE(accepted("x", argument(1, true), argument(3, false), argument(4, false)));
    const std::string text = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(text.find("number 3 "), std::string::npos);
    EXPECT_EQ(text.find("number 4 "), std::string::npos);
    EXPECT_TRUE(accepted("x", argument(1, true), argument(3, true)));
}

} // namespace
} // namespace kor::linalg
