// The reporters of the kernels by failure mode, and the unit that they write to.
#include <string>

#include <gtest/gtest.h>

#include "frame/kernel_report.hpp"
#include "frame/units.hpp"

namespace kor {
namespace {

struct Output {
    std::string out, err;
    Integer result;
};

template <class Action>
Output output_of(Action action)
{
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    const Integer result = action();
    std::string out = ::testing::internal::GetCapturedStdout();
    return {std::move(out), ::testing::internal::GetCapturedStderr(), result};
}

const char *const kSoft = " ** KOR soft failure - control returned\n";
const char *const kHard = " ** KOR hard failure - execution terminated\n";

struct Mode {
    Integer ifail;
    const char *ending; // null: silent; empty: the record alone
};

// Tens digit: print; last digit: 1 is soft. No mode ends the process.
const Mode kModes[] = {{1, nullptr}, {5, nullptr}, {101, nullptr}, {-11, nullptr}, {-2, nullptr}, {-110, nullptr},
                       {0, kHard},   {-1, kSoft},  {-13, ""},      {11, kSoft},    {10, kHard},   {110, kHard},
                       {111, kSoft}, {21, kSoft},  {13, kHard},    {99, kHard}};

TEST(KernelReport, P01abfByMode)
{
    const std::string header = " ** ABNORMAL EXIT from KOR Library routine C05AZF: IFAIL =     4 **\n";
    for (const Mode &mode : kModes) {
        const auto [out, err, result] =
            output_of([&] { return p01abf_f(mode.ifail, 4, "C05AZF", 1, "What went wrong.   "); });
        std::string expected;
        if (mode.ending != nullptr) expected = "What went wrong.\n";
        if (mode.ending != nullptr && *mode.ending != '\0') expected += header + mode.ending;
        EXPECT_EQ(out, expected) << mode.ifail;
        EXPECT_EQ(err, "");
        EXPECT_EQ(result, 4);
    }
}

TEST(KernelReport, P01abfWithoutStatusOrRecord)
{
    for (const Integer ifail : {0, -1, 1, 11, -13}) {
        const auto [out, err, result] = output_of([&] { return p01abf_f(ifail, 0, "C05AZF", 1, "no fault"); });
        EXPECT_EQ(out, "");
        EXPECT_EQ(result, 0);
    }
    const std::string bare =
        std::string{" ** ABNORMAL EXIT from KOR Library routine F02FAF: IFAIL =    -7 **\n"} + kSoft;
    EXPECT_EQ(output_of([] { return p01abf_f(-1, -7, "F02FAF", 0, "not wanted"); }).out, bare);
    EXPECT_EQ(output_of([] { return p01abf_f(-1, -7, "F02FAF", 1, nullptr); }).out, bare);
    EXPECT_EQ(output_of([] { return p01abf_f(-13, -7, "F02FAF", 0, nullptr); }).out, "");
}

TEST(KernelReport, P01acfNamesItsVariableAndWritesTheRecordToStandardError)
{
    for (const Mode &mode : kModes) {
        const auto [out, err, result] =
            output_of([&] { return p01acf_f(mode.ifail, 123456, "F06AAZLONG", "INFO  ", 1, "What went wrong."); });
        EXPECT_EQ(err, mode.ending != nullptr ? "What went wrong.\n" : "") << mode.ifail;
        std::string expected;
        if (mode.ending != nullptr && *mode.ending != '\0')
            expected = std::string{" ** ABNORMAL EXIT from KOR Library routine F06AAZ: INFO = 123456\n"} + mode.ending;
        EXPECT_EQ(out, expected) << mode.ifail;
        EXPECT_EQ(result, 123456);
    }
    for (const char *blank : {"", "   "})
        EXPECT_EQ(output_of([&] { return p01acf_f(11, 2, "F06AAZ", blank, 0, nullptr); }).out,
                  std::string{" ** ABNORMAL EXIT from KOR Library routine F06AAZ\n"} + kSoft);
    EXPECT_EQ(output_of([] { return p01acf_f(0, 0, "F06AAZ", "INFO", 1, "no fault"); }).err, "");
}

// One character of each name: what callers have always seen.
TEST(KernelReport, InvalidParametersAreCountedAndPrintedUnlessSoftAndSilent)
{
    const std::string head = "\n *****  Parameter  N  is invalid in routine  F  ***** \n        Value supplied is";
    for (const Integer ifail : {0, 10, 11, 110, -1, -11, 111, 2}) {
        Integer nerr = 3;
        const Output of_integer = output_of([&] { return p01aby_f(-42, "NROW", ifail, &nerr, "F02FAF"), nerr; });
        EXPECT_EQ(of_integer.out, head + "    -42\n") << ifail;
        const Output of_text = output_of([&] { return p01abw_f("Upper", "NROW", ifail, &nerr, "F02FAF"), nerr; });
        EXPECT_EQ(of_text.out, head + "\n        U\n") << ifail;
        EXPECT_EQ(of_integer.result, 4);
        EXPECT_EQ(of_text.result, 5);
    }
    for (const Integer ifail : {1, 101}) {
        Integer nerr = 0;
        EXPECT_EQ(output_of([&] { return p01aby_f(1, "NROW", ifail, &nerr, "F02FAF"), 0; }).out, "");
        EXPECT_EQ(output_of([&] { return p01abw_f("U", "NROW", ifail, &nerr, "F02FAF"), 0; }).out, "");
        EXPECT_EQ(nerr, 2);
    }
}

TEST(Units, LinesWithoutTheirTrailingBlanks)
{
    const auto line = [](Integer unit, const char *rec, Integer length) {
        return output_of([&] { return x04baf_f(unit, rec, length), 0; }).out;
    };
    EXPECT_EQ(line(6, "  text  ", 8), "  text\n");
    EXPECT_EQ(line(6, "  text  ", 4), "  te\n");
    EXPECT_EQ(line(0, "     ", 5), "\n");
    EXPECT_EQ(line(6, "", 0), "\n");
    EXPECT_EQ(line(6, "100 %s %n", 9), "100 %s %n\n");
    EXPECT_EQ(line(-1, "text", 4), "");
}

TEST(Units, ErrorUnitIsFixedAndAdvisoryUnitIsNot)
{
    Integer unit = 99;
    x04aaf_f(1, &unit); // cannot be set
    EXPECT_EQ(unit, 99);
    x04aaf_f(0, &unit);
    EXPECT_EQ(unit, 6);

    x04abf_f(0, &unit);
    EXPECT_EQ(unit, 6);
    unit = -3;
    x04abf_f(1, &unit);
    unit = 0;
    x04abf_f(2, &unit);
    EXPECT_EQ(unit, 0);
    x04abf_f(0, &unit);
    EXPECT_EQ(unit, -3);
    unit = 6;
    x04abf_f(1, &unit);
    x04bat();
}

} // namespace
} // namespace kor
