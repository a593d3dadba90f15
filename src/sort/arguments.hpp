// The tests of arguments that the routines of this chapter share. Each reports what it finds, and says whether all is well.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <kor.h>

#include "frame/report.hpp"

namespace kor::sort {

inline constexpr Integer kMaxCount = 0xFFFFFFF;           // a negative count, read as unsigned, is beyond it too
inline constexpr Integer kMaxBytes = INT32_MAX;           // of an array
inline constexpr Integer kMaxSearchBytes = kMaxBytes / 2; // of an array that is searched

// The limit in a report is text.
class LimitText {
  public:
    explicit LimitText(Integer limit, const char *format = "%ld")
    {
        std::snprintf(text_, sizeof text_, format, static_cast<long>(limit));
    }
    const char *c_str() const { return text_; }

  private:
    char text_[40];
};

inline bool count_in_range(Integer n) { return static_cast<uint32_t>(n) <= static_cast<uint32_t>(kMaxCount); }

// The greatest distance of elements for which the array keeps to `bytes`.
inline Integer greatest_stride(Integer n, Integer bytes)
{
    return n == 0 ? bytes : static_cast<Integer>(static_cast<uint32_t>(bytes) / static_cast<uint32_t>(n));
}

inline int64_t magnitude(Integer stride) { return std::llabs(static_cast<int64_t>(stride)); }

inline bool order_is_right(const Report &report, Integer order)
{
    if (order == Kor_Ascending || order == Kor_Descending) return true;
    report.error<NE_BAD_PARAM>("order");
    return false;
}

inline bool count_is_right(const Report &report, Integer n)
{
    if (count_in_range(n)) return true;
    report.error<NE_INT_ARG_GT>("n", LimitText{kMaxCount}.c_str(), "n", n);
    return false;
}

inline bool layout_is_right(const Report &report, Integer n, Integer size, Integer stride)
{
    const Integer limit = greatest_stride(n, kMaxBytes);
    if (size < 1) {
        report.error<NE_INT_ARG_LT>("size", "1", "size", size);
    } else if (size > limit) {
        report.error<NE_INT_ARG_GT>("size", LimitText{limit}.c_str(), "size", size);
    } else if (magnitude(stride) < size) {
        report.error<NE_2_INT_ARG_LT>("|stride|", magnitude(stride), "size", size, "|stride|", "size");
    } else if (magnitude(stride) > limit) {
        report.error<NE_INT_ARG_GT>("|stride|", LimitText{limit}.c_str(), "stride", stride);
    } else {
        return true;
    }
    return false;
}

inline bool stride_is_right(const Report &report, Integer stride, Integer limit, const char *limit_format)
{
    if (stride == 0) {
        report.error<NE_INT_ARG_EQ>("stride", "0", "stride", stride);
    } else if (magnitude(stride) > limit) {
        report.error<NE_INT_ARG_GT>("|stride|", LimitText{limit, limit_format}.c_str(), "stride", stride);
    } else {
        return true;
    }
    return false;
}

// Of the routines that sort. A count out of range is reported, and the tests go on: the record then holds the last report.
inline bool sort_arguments_are_right(const Report &report, Integer n, Integer size, Integer stride, Integer order)
{
    if (!order_is_right(report, order)) return false;
    const bool count_right = count_is_right(report, n);
    return layout_is_right(report, n, size, stride) && count_right;
}

} // namespace kor::sort
