// Expectations about reports. Texts are formed from the exported catalogue, never copied.
#pragma once

#include <cstdio>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <kor/p01.h>

namespace kor::testing {

// A cleared record.
struct Record : KorError {
    Record() : KorError{} {}
};

// The catalogue entry filled in; integers are widened for %ld.
template <class... Args>
std::string message_of(Integer code, Args... args)
{
    const auto widened = [](auto value) {
        if constexpr (std::is_integral_v<decltype(value)>)
            return static_cast<long>(value);
        else
            return value;
    };
    char text[1024];
    if constexpr (sizeof...(Args) == 0)
        return kor_errlist[code];
    else
        std::snprintf(text, sizeof text, kor_errlist[code], widened(args)...);
    return text;
}

// The record holds this report, with exactly this text.
template <class... Args>
::testing::AssertionResult holds_report(const KorError &record, Integer code, Args... args)
{
    const std::string expected = message_of(code, args...);
    if (record.code == code && expected == record.message) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "expected " << code << ", \"" << expected << "\", got " << record.code
                                         << ", \"" << record.message << "\"";
}

#define EXPECT_REPORT(...) EXPECT_TRUE(::kor::testing::holds_report(__VA_ARGS__))
#define EXPECT_SUCCESS(record) EXPECT_REPORT(record, NE_NOERROR)

} // namespace kor::testing
