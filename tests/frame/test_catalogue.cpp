// The catalogues and the look-ups by name: whole lists, read from their one source.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <kor/p01.h>
#include <kor/x04.h>

namespace {

constexpr Integer kUnknown = -5438;

const char *const kKeys[] = {
#define KOR_ERROR(key, text) #key,
#include <kor/errors.def>
#undef KOR_ERROR
};

TEST(Catalogue, EveryEntryIsKeyColonNewlineBlanksText)
{
    ASSERT_EQ(KOR_ERROR_COUNT, 701);
    int errors = 0;
    int warnings = 0;
    std::set<std::string> keys;
    for (Integer code = 0; code < KOR_ERROR_COUNT; ++code) {
        const std::string entry = kor_errlist[code];
        const std::string head = std::string{kKeys[code]} + ":\n  ";
        ASSERT_EQ(entry.substr(0, head.size()), head);
        EXPECT_GT(entry.size(), head.size()) << head;
        EXPECT_EQ(entry[head.size()] == ' ', code == NE_TOTAL_PRECISION_LOSS) << head;
        EXPECT_TRUE(keys.insert(kKeys[code]).second) << head << " stands twice";
        errors += entry.compare(0, 3, "NE_") == 0;
        warnings += entry.compare(0, 3, "NW_") == 0;
    }
    EXPECT_EQ(errors, 663);
    EXPECT_EQ(warnings, 38);
    EXPECT_STREQ(kor_errlist[KOR_ERROR_COUNT], "");
}

// Blanks and punctuation that look like slips, and that callers compare with.
TEST(Catalogue, IrregularTexts)
{
    const struct {
        Integer code;
        const char *fragment;
    } cases[] = {
        {NE_REAL_ARG_CONS, "%s = %g. \n"},          {NE_INT_ARG_CONS, "%s = %ld. \n"},
        {NE_INT_ARG_GE, "equal to %s:%s = %ld."},   {NE_2_INT_ARG_ZERO, "= 0 and  %s"},
        {NE_2_REAL_ARRAYS_CONS, "On entry %s["},    {NE_2_REAL_ARRAYS_CONS, "while  %s["},
        {NE_REAL_ARRAY_ELEM_CONS, "On entry %s ="}, {NE_NOT_NON_DECREASING, "On entry,the sequence"},
        {NE_NO_NORMALISATION, "all the %s in"},     {NE_ARG_INVALID, "%1ld.\n Constraint: %s must"},
        {NE_TOTAL_PRECISION_LOSS, ":\n   The"},
    };
    for (const auto &c : cases)
        EXPECT_NE(std::string{kor_errlist[c.code]}.find(c.fragment), std::string::npos) << kor_errlist[c.code];
}

TEST(Catalogue, CodesAtTheirPlaces)
{
    const struct {
        Integer code;
        Integer value;
    } places[] = {
        {NE_NOERROR, 0},    {NE_REAL_ARG_LE, 6},     {NE_USER_STOP, 68},    {NE_ALLOC_FAIL, 73},
        {NE_REAL, 96},      {NE_PROBABLE_POLE, 131}, {NE_SYSTEM_TIME, 552}, {NE_INPUT_NARMA, 635},
        {NE_INFINITE, 699}, {NE_S21_CONV, 700},      {NE_SINGULAR, 357},    {NE_TOO_MANY_ITERATIONS, 362},
    };
    for (const auto &place : places) EXPECT_EQ(place.code, place.value);
}

TEST(Catalogue, ChapterTablesHaveTheirSizesAndEnds)
{
    const struct {
        const char *chapter;
        const char *const *table;
        int entries;
        const char *first;
    } tables[] = {
        {"e04", kor_e04mesg, 426, ": Dummy message for Chapter e04\n"},
        {"g02", kor_g02mesg, 21, nullptr},
        {"g03", kor_g03mesg, 9, ": Dummy message for Chapter g03\n"},
        {"g12", kor_g12mesg, 4, ": Dummy message for Chapter g12\n"},
        {"g13", kor_g13mesg, 38, ": Dummy message for Chapter g13\n"},
        {"h02", kor_h02mesg, 91, ": Dummy message for Chapter h02"},
    };
    for (const auto &t : tables) {
        for (int i = t.first != nullptr ? 1 : 0; i < t.entries; ++i) {
            const std::string entry = t.table[i];
            EXPECT_EQ(entry.compare(0, 3, "NM_"), 0) << t.chapter << " " << i << ": " << entry;
            EXPECT_NE(entry.find(": "), std::string::npos) << entry;
        }
        if (t.first != nullptr) {
            EXPECT_STREQ(t.table[0], t.first);
        }
        EXPECT_STREQ(t.table[t.entries], "") << t.chapter;
    }
}

TEST(LookUp, EveryEnumeratorByItsName)
{
    const struct {
        const char *name;
        Integer value;
    } enumerators[] = {
#define KOR_ENUMERATOR(name) {#name, name},
#include <kor/enumerators.def>
#undef KOR_ENUMERATOR
    };
    Integer place = 0;
    for (const auto &enumerator : enumerators) {
        EXPECT_EQ(enumerator.value, ++place) << enumerator.name;
        EXPECT_EQ(x04mac(enumerator.name), place) << enumerator.name;
    }
    EXPECT_EQ(place, 519);
    EXPECT_EQ(x04mac("NoTranspose"), 1);
    EXPECT_EQ(x04mac("Kor_Smooth_Param_DF"), 427);
    EXPECT_EQ(x04mac("Kor_FeasiblePoint"), 519);
    for (const char *name : {"", "Kor_feasiblepoint", "Kor_SmoothParamDF", "Kor_FeasiblePoint ", "KOR_ENUMERATOR_END"})
        EXPECT_EQ(x04mac(name), kUnknown) << name;
}

TEST(LookUp, EveryCodeByItsKeyButTwo)
{
    for (Integer code = 0; code < KOR_ERROR_COUNT; ++code) {
        const bool hidden = code == NE_INPUT_NARMA || code == NE_S21_CONV;
        EXPECT_EQ(x04mbc(kKeys[code]), hidden ? kUnknown : code) << kKeys[code];
    }
    EXPECT_EQ(x04mbc("NE_ARIMA_INPUT_NPAR"), 635);
    for (const char *key : {"", "NE_", "ne_alloc_fail", "NE_ALLOC_FAIL:"}) EXPECT_EQ(x04mbc(key), kUnknown) << key;
}

} // namespace
