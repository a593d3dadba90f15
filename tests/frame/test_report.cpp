// p01acc in every clause, and the catalogue behind it.
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include <kor/c05.h>
#include <kor/p01.h>

#include "support/expect_report.hpp"

namespace {

using kor::testing::message_of;
using kor::testing::Record;
using ::testing::ExitedWithCode;

// What p01acc writes to the standard error stream.
std::string printed(const char *message, Integer code, KorError *fail)
{
    ::testing::internal::CaptureStderr();
    p01acc(message, code, "x99abc", fail);
    return ::testing::internal::GetCapturedStderr();
}

std::string framed(const char *word, const std::string &text)
{
    return std::string{word} + " KOR routine x99abc:\n" + text + "\n";
}
const char *const kError = "Error detected by";
const char *const kWarning = "Warning from";

TEST(Report, NullMessageStandsForTheCatalogueEntry)
{
    for (Integer code = 0; code < KOR_ERROR_COUNT; ++code) {
        Record fail;
        EXPECT_EQ(printed(nullptr, code, &fail), "");
        EXPECT_REPORT(fail, code);
    }
}

TEST(Report, PrintFlagSendsEverythingButSuccessToStandardError)
{
    Record fail;
    for (const Boolean print : {Boolean{1}, Boolean{0x91}}) {
        fail.print = print;
        EXPECT_EQ(printed(nullptr, NE_ALLOC_FAIL, &fail), framed(kError, kor_errlist[NE_ALLOC_FAIL]));
        EXPECT_EQ(printed(nullptr, NW_SOME_PRECISION_LOSS, &fail),
                  framed(kWarning, kor_errlist[NW_SOME_PRECISION_LOSS]));
        EXPECT_EQ(printed("NE_MINE: any text", NE_NOERROR, &fail), "");
        EXPECT_STREQ(fail.message, "NE_MINE: any text");
    }
}

// The text alone decides between the two words: the first N of characters 0 to 4, or the place behind them, then an E.
TEST(Report, WordIsChosenByTheTextAlone)
{
    const struct {
        const char *text;
        const char *word;
    } cases[] = {
        {"NE", kError},     {"NW", kWarning},     {"xNE", kError},    {"xxxxNE", kError},  {"xxxxxNE", kWarning},
        {"xxxxxE", kError}, {"xxxxxx", kWarning}, {"NxNE", kWarning}, {"xxxxx", kWarning}, {"", kWarning},
        {"N", kWarning},    {"xxxxN", kWarning},  {"ne", kWarning},   {"NNE", kWarning},   {"xxxxE", kWarning},
    };
    Record fail;
    fail.print = 1;
    for (const auto &c : cases) {
        EXPECT_EQ(printed(c.text, NE_ALLOC_FAIL, &fail), framed(c.word, c.text));
        EXPECT_EQ(printed(c.text, NW_SOME_PRECISION_LOSS, &fail), framed(c.word, c.text));
    }
    // Every key of the catalogue says what its reports are.
    for (Integer code = 1; code < KOR_ERROR_COUNT; ++code)
        EXPECT_EQ(printed(nullptr, code, &fail),
                  framed(kor_errlist[code][1] == 'E' ? kError : kWarning, kor_errlist[code]));
}

struct Call {
    std::string text;
    Integer code = -1;
    std::string routine;
    Integer code_in_record = -1;
    std::string message_in_record;
} last_call;
KorError *watched = nullptr;

void note_call(const char *text, Integer code, const char *routine)
{
    last_call = {text, code, routine, watched->code, watched->message};
}

TEST(Report, HandlerSeesEachReportBeforeTheMessageIsCopied)
{
    Record fail;
    watched = &fail;
    fail.handler = note_call;
    std::strcpy(fail.message, "old");
    for (const Integer code : {NE_ALLOC_FAIL, NW_SOME_PRECISION_LOSS, NE_NOERROR}) {
        const std::string old = fail.message;
        EXPECT_EQ(printed(nullptr, code, &fail), ""); // the print flag does not concern the handler
        EXPECT_EQ(last_call.text, kor_errlist[code]);
        EXPECT_EQ(last_call.code, code);
        EXPECT_EQ(last_call.routine, "x99abc");
        EXPECT_EQ(last_call.code_in_record, code);
        EXPECT_EQ(last_call.message_in_record, old);
    }
}

TEST(Report, LongTextIsCutInTheRecordOnly)
{
    Record fail;
    const std::string exact(sizeof fail.message - 1, 'x');
    p01acc(exact.c_str(), NE_ALLOC_FAIL, "x99abc", &fail);
    EXPECT_EQ(fail.message, exact);

    fail.print = 1;
    const std::string longer = exact + "tail";
    fail.errnum = 17;
    EXPECT_EQ(printed(longer.c_str(), NE_ALLOC_FAIL, &fail), framed(kWarning, longer));
    EXPECT_EQ(fail.message, exact);
    EXPECT_EQ(fail.errnum, 17); // the reporter leaves it to the routine
}

TEST(Report, RecordMayPassOnItsOwnMessage)
{
    Record fail;
    p01acc(nullptr, NE_ALLOC_FAIL, "x99abc", &fail);
    p01acc(fail.message, NE_INTERNAL_ERROR, "x99abc", &fail);
    EXPECT_EQ(fail.code, NE_INTERNAL_ERROR);
    EXPECT_STREQ(fail.message, kor_errlist[NE_ALLOC_FAIL]);
}

TEST(ReportDeathTest, NullRecordEndsTheProcessWarningsIncluded)
{
    for (const Integer code : {NE_ALLOC_FAIL, NW_SOME_PRECISION_LOSS}) {
        const std::string text =
            framed(code == NE_ALLOC_FAIL ? kError : kWarning, kor_errlist[code]) + "...Program Terminated\n";
        EXPECT_EXIT(p01acc(nullptr, code, "x99abc", nullptr), ExitedWithCode(1), ::testing::Eq(text));
    }
    EXPECT_EQ(printed(nullptr, NE_NOERROR, nullptr), "");

    const std::string text = "Error detected by KOR routine c05adc:\n" +
                             message_of(NE_REAL_ARG_LE, "xtol", "0.0", "xtol", -1.5) + "\n...Program Terminated\n";
    double x = 0.0;
    EXPECT_EXIT(c05adc(
                    0.0, 1.0, &x, [](double t) { return t; }, -1.5, 0.0, nullptr),
                ExitedWithCode(1), ::testing::Eq(text));
}

} // namespace
