// The record after success: an old error is gone, the handler saw one report, and a null record keeps silent.
#include <algorithm>
#include <cctype>
#include <string>

#include <gtest/gtest.h>

#include "support/specimen.hpp"

namespace kor::testing {
namespace {

thread_local int reports = 0;
thread_local std::string reporter;

void count_reports(const char *, Integer, const char *routine)
{
    ++reports;
    reporter = routine;
}

TEST(Sweep, SuccessClearsTheRecordAndIsReportedOnce)
{
    for (const Registration &routine : registry()) {
        if (!routine.has_record) continue;
        KorError fail{};
        fail.code = NE_INTERNAL_ERROR;
        fail.errnum = 7;
        fail.handler = count_reports;
        reports = 0;
        run_specimen(routine, [&](const Specimen::Action &action) { action(&fail); });
        EXPECT_EQ(fail.code, NE_NOERROR) << routine.routine << ": " << fail.message;
        EXPECT_EQ(fail.errnum, 0) << routine.routine;
        EXPECT_EQ(reports, 1) << routine.routine;
        // One routine of chapter g05 reports in capitals.
        std::transform(reporter.begin(), reporter.end(), reporter.begin(),
                       [](unsigned char c) { return std::tolower(c); });
        EXPECT_EQ(reporter, routine.routine);
    }
}

TEST(Sweep, NullRecordKeepsSilentOnSuccess)
{
    for (const Registration &routine : registry()) {
        if (!routine.has_record) continue;
        ::testing::internal::CaptureStderr();
        run_specimen(routine, [](const Specimen::Action &action) { action(nullptr); });
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), "") << routine.routine;
    }
}

} // namespace
} // namespace kor::testing
