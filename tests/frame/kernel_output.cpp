// Chapter output through sinks, the plain files beside it, and the small text routines.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "frame/files.hpp"
#include "frame/messages.hpp"
#include "frame/sink.hpp"
#include "frame/text.hpp"

namespace kor {
namespace {

namespace fs = std::filesystem;

// A directory of its own for each test, which is also the working directory.
class Output : public ::testing::Test {
  protected:
    Output()
        : home_{fs::current_path()}, directory_{fs::path{::testing::TempDir()} /
                                                ("kor_output_" + std::to_string(getpid()))}
    {
        fs::create_directories(directory_);
        fs::current_path(directory_);
    }
    ~Output() override
    {
        fs::current_path(home_);
        fs::remove_all(directory_);
    }

    static std::string contents(const std::string &path)
    {
        std::ostringstream text;
        text << std::ifstream{path}.rdbuf();
        return text.str();
    }

  private:
    fs::path home_, directory_;
};

KorMesgSink sink_to(const char *outfile, const char *chapter = "E04")
{
    KorMesgSink sink{};
    std::snprintf(sink.outfile, sizeof sink.outfile, "%s", outfile);
    sink.chapter = chapter;
    return sink;
}

TEST_F(Output, LinesAreAppendedAndTheFileClosedBetween)
{
    std::ofstream{"results"} << "before\n";
    KorMesgSink sink = sink_to("results");
    x04bav(&sink, "a line with 100 %s");
    EXPECT_EQ(contents("results"), "before\na line with 100 %s\n");
    fs::rename("results", "moved"); // nothing is held open: the next text makes a new file
    x04baw(&sink, "no newline,");
    x04baw(&sink, " none");
    EXPECT_EQ(contents("results"), "no newline, none");
    EXPECT_EQ(sink.status, 0);
    EXPECT_EQ(sink.opened, 1);
}

TEST_F(Output, StandardStreamsByName)
{
    KorMesgSink out = sink_to("stdout");
    KorMesgSink err = sink_to("stderr");
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    for (int i = 0; i < 2; ++i) {
        x04bav(&out, "to the one");
        x04bav(&err, "to the other");
    }
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "to the one\nto the one\n");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "to the other\nto the other\n");
    EXPECT_TRUE(out.is_stdout != 0 && out.is_stderr == 0 && err.is_stderr != 0 && err.is_stdout == 0);
    EXPECT_TRUE(fs::is_empty(fs::current_path()));
}

TEST_F(Output, FirstFailureStaysAndSilencesTheSink)
{
    fs::create_directory("directory");
    for (const char *name : {"directory", "missing/file", "stdin", ""}) {
        KorMesgSink sink = sink_to(name);
        x04bav(&sink, "text");
        EXPECT_EQ(sink.status, NE_NOT_APPEND_FILE) << name;
        std::snprintf(sink.outfile, sizeof sink.outfile, "good");
        x04bav(&sink, "text");
        x04baw(&sink, "text");
        x04baz(&sink, "KEY: text", 0, nullptr);
        EXPECT_FALSE(fs::exists("good")) << name;
    }
    std::ofstream{"locked"} << "untouched";
    fs::permissions("locked", fs::perms::owner_read);
    if (geteuid() != 0) { // nothing is read-only to the superuser
        KorMesgSink sink = sink_to("locked");
        x04bav(&sink, "text");
        EXPECT_EQ(sink.status, NE_NOT_APPEND_FILE);
    }
}

// A device that is always full: a short text fails when the file is closed, a long one while it is written.
TEST_F(Output, FullDevice)
{
    if (!fs::exists("/dev/full")) GTEST_SKIP();
    KorMesgSink sink = sink_to("/dev/full");
    x04bav(&sink, "short");
    EXPECT_EQ(sink.status, NE_NOT_CLOSE_FILE);
    sink = sink_to("/dev/full");
    x04bav(&sink, std::string(1 << 17, 'x').c_str());
    EXPECT_EQ(sink.status, NE_WRITE_ERROR);
}

TEST_F(Output, EveryEntryOfEveryCatalogueWithoutItsKey)
{
    const struct {
        const char *chapter;
        const char *const *table;
    } chapters[] = {
        {"E04", kor_e04mesg}, {"G02", kor_g02mesg}, {"G03", kor_g03mesg}, {"G13", kor_g13mesg}, {"H02", kor_h02mesg}};
    for (const auto &[chapter, table] : chapters) {
        KorMesgSink sink = sink_to(chapter, chapter);
        std::string expected;
        for (Integer i = 0; table[i][0] != '\0'; ++i) {
            x04baz(&sink, nullptr, i, nullptr);
            const std::string entry = table[i];
            expected += entry.substr(entry.find(':') + 2);
        }
        EXPECT_EQ(contents(chapter), expected);
        EXPECT_EQ(sink.status, 0);
    }
    for (const char *chapter : {"G12", "e04", "", static_cast<const char *>(nullptr)}) {
        KorMesgSink sink = sink_to("nothing", chapter);
        x04baz(&sink, nullptr, 0, nullptr); // no catalogue: nothing to say
        EXPECT_FALSE(fs::exists("nothing"));
        x04baz(&sink, "NM_X: said", 0, nullptr);
        EXPECT_EQ(contents("nothing"), "said");
        fs::remove("nothing");
    }
}

TEST_F(Output, FormattedTextsLoseTheirKeyToo)
{
    KorMesgSink sink = sink_to("out");
    x04baz(&sink, "NM_KEY: Iteration 3: done\n", 7, nullptr);
    x04baz(&sink, "NM_KEY:\nnext\n", 7, nullptr);
    x04baz(&sink, "no colon\n", 7, nullptr);
    x04baz(&sink, "NM_END:", 7, nullptr);
    EXPECT_EQ(contents("out"), "Iteration 3: done\nnext\nno colon\n");
}

struct Heard {
    std::string text;
    Integer index = -1;
};

void listen(const char *text, Integer index, void *p) { *static_cast<Heard *>(p) = {text, index}; }

TEST_F(Output, FlagsDecideWhatIsPrintedAndTheHookHearsAll)
{
    KorMesgSink sink = sink_to("out");
    Heard heard;
    KorComm control{};
    control.p = &heard;
    x04baz(&sink, "NM_KEY: silent\n", 5, &control);
    EXPECT_FALSE(fs::exists("out"));

    control.print_hook = listen;
    x04baz(&sink, "NM_KEY: only heard\n", 5, &control);
    EXPECT_FALSE(fs::exists("out"));
    EXPECT_EQ(heard.text, "NM_KEY: only heard\n");
    EXPECT_EQ(heard.index, 5);

    int printed = 0;
    for (Boolean KorComm::*flag : {&KorComm::it_prt, &KorComm::it_maj_prt, &KorComm::sol_sqp_prt, &KorComm::sol_prt}) {
        control.*flag = 0x91;
        x04baz(&sink, nullptr, 0, &control);
        control.*flag = 0;
        std::string expected;
        for (++printed; expected.size() < static_cast<std::size_t>(printed) * (std::string{kor_e04mesg[0]}.size() - 2);)
            expected += std::string{kor_e04mesg[0]}.substr(2);
        EXPECT_EQ(contents("out"), expected);
        EXPECT_EQ(heard.text, kor_e04mesg[0]);
    }

    // A failure silences the hook too, in the very call that meets it.
    sink = sink_to("missing/file");
    heard = {};
    control.it_prt = 1;
    x04baz(&sink, "NM_KEY: lost\n", 5, &control);
    EXPECT_EQ(sink.status, NE_NOT_APPEND_FILE);
    EXPECT_EQ(heard.index, -1);
}

TEST_F(Output, TraceIsAppendedAndItsTextIsAFormat)
{
    x04aaz("first 100%% ");
    x04aaz("second\n");
    EXPECT_EQ(contents("KorDebug_file"), "first 100% second\n");
    fs::remove("KorDebug_file");
    fs::create_directory("KorDebug_file");
    ::testing::internal::CaptureStderr();
    x04aaz("nowhere to go"); // silent
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST_F(Output, PlainFilesOpenAppendAndClose)
{
    x04bay("file", "one ");
    x04bay("file", "two 100%s\n");
    EXPECT_EQ(contents("file"), "one two 100%s\n");
    std::FILE *file = x04bax("file");
    char word[8];
    EXPECT_EQ(std::fscanf(file, "%7s", word), 1);
    EXPECT_STREQ(word, "one");
    EXPECT_EQ(x04bau(file), 0);
    EXPECT_EQ(x04bax(nullptr), stdin);
    EXPECT_EQ(x04bau(stdin), 0);
    EXPECT_FALSE(std::ferror(stdin));

    ::testing::internal::CaptureStdout();
    x04bay(nullptr, "to the standard output 100%s");
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "to the standard output 100%s");
}

using OutputDeathTest = Output;

TEST_F(OutputDeathTest, PlainFilesThatFailEndTheProcess)
{
    using ::testing::Eq;
    using ::testing::ExitedWithCode;
    EXPECT_EXIT(x04bax("missing"), ExitedWithCode(1), Eq("Unable To Open Input File: missing"));
    EXPECT_EXIT(x04bay("missing/file", "text"), ExitedWithCode(1), Eq("Unable To Open Output File: missing/file\n"));
    if (!fs::exists("/dev/full")) return;
    EXPECT_EXIT(x04bay("/dev/full", "text"), ExitedWithCode(1), Eq("Unable To Close the Output File: /dev/full\n"));
    const std::string long_text(1 << 17, 'x');
    EXPECT_EXIT(x04bay("/dev/full", long_text.c_str()), ExitedWithCode(1),
                Eq("Unable To Write to the Output File: /dev/full\n"));
    EXPECT_EXIT(
        {
            if (std::freopen("/dev/full", "w", stdout) == nullptr) std::abort();
            x04bay(nullptr, long_text.c_str());
        },
        ExitedWithCode(1), Eq("Unable To Write to the stdout\n"));
}

TEST(Text, CaseAndCopies)
{
    char text[] = "Print Level = 10; ftol\xff";
    x04bbz(text);
    EXPECT_STREQ(text, "PRINT LEVEL = 10; FTOL\xff");
    x04bcz(text);
    EXPECT_STREQ(text, "print level = 10; ftol\xff");

    char copy[8] = "1234567";
    x04caz(copy, "abcdef", 3);
    EXPECT_STREQ(copy, "abc");
    EXPECT_EQ(copy[4], '5');
    x04caz(copy, "ab", 7); // filled up with terminators
    EXPECT_EQ(std::string(copy, 8), std::string("ab\0\0\0\0\0\0", 8));
    x04caz(copy, "ab", 0);
    EXPECT_STREQ(copy, "");
}

} // namespace
} // namespace kor
