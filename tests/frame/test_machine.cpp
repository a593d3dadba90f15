// Machine constants by their bits, memory, the clock and the banners.
#include <bit>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <kor/a00.h>
#include <kor/x02.h>
#include <kor/x04.h>
#include <kor/x05.h>

namespace {

TEST(MachineConstants, BitPatterns)
{
    const auto bits = [](double x) { return std::bit_cast<std::uint64_t>(x); };
    EXPECT_EQ(bits(x02ajc()), 0x3CA0040000000000u);
    EXPECT_EQ(bits(x02akc()), 0x0010000000000000u);
    EXPECT_EQ(bits(x02alc()), 0x7FEFFFFFFFFFFFFFu);
    EXPECT_EQ(bits(x02amc()), 0x0010000000000000u);
    EXPECT_EQ(bits(x02anc()), 0x0010000000000000u);
    EXPECT_EQ(bits(x02ahc()), 0x43F0000000000000u);
    EXPECT_EQ(x02dac(), 0);
    EXPECT_GT(1.0 + x02ajc(), 1.0); // what a plain 2^-53 would not give
}

TEST(Memory, FreeingClearsThePointerAndForgivesNull)
{
    void *block = x04bbc(16);
    ASSERT_NE(block, nullptr);
    std::memcpy(block, "fifteen letters", 16);
    block = x04bcc(block, 1 << 20);
    ASSERT_NE(block, nullptr);
    EXPECT_STREQ(static_cast<char *>(block), "fifteen letters");
    x04bdc(&block);
    EXPECT_EQ(block, nullptr);
    x04bdc(&block);
    EXPECT_EQ(block, nullptr);
}

TEST(Memory, GlobalFileNamesStartNull)
{
    EXPECT_EQ(global_datafile, nullptr);
    EXPECT_EQ(global_resfile, nullptr);
}

TEST(Clock, CountsSeconds)
{
    const auto low_bits = [](std::time_t t) { return static_cast<Integer>(t & 0x7fffffff); };
    const Integer before = low_bits(std::time(nullptr));
    const Integer now = x05aac();
    EXPECT_LE(before, now);
    EXPECT_LE(now, low_bits(std::time(nullptr)));
}

std::string contents(const std::string &path)
{
    std::ostringstream text;
    text << std::ifstream{path}.rdbuf();
    return text.str();
}

TEST(Banner, SameFourLinesOnBothRoads)
{
    ::testing::internal::CaptureStdout();
    a00aac();
    const std::string banner = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(std::count(banner.begin(), banner.end(), '\n'), 4);
    EXPECT_EQ(banner.compare(0, 37, "*** KOR C Library Implementation ***\n"), 0);
    EXPECT_NE(banner.find("    Implementation code (QZTRM06WB)\n    Level 6\n"), std::string::npos);

    ::testing::internal::CaptureStdout();
    a00abc(nullptr);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), banner);

    const std::string path = ::testing::TempDir() + "/kor_banner";
    std::remove(path.c_str());
    a00abc(path.c_str());
    a00abc(path.c_str()); // appended
    EXPECT_EQ(contents(path), banner + banner);
    std::remove(path.c_str());
}

TEST(BannerDeathTest, EndsTheProcessWhereItCannotWrite)
{
    const std::string path = ::testing::TempDir() + "/no such directory/banner";
    EXPECT_EXIT(a00abc(path.c_str()), ::testing::ExitedWithCode(1),
                ::testing::Eq("Unable To Open Output File: " + path + "\n"));
}

} // namespace
