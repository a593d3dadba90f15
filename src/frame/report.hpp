// How a public routine reports: entry, errors and success go through one object.
#pragma once

#include <cstring>
#include <string_view>
#include <type_traits>

#include <kor/p01.h>

#include "frame/catalogue.hpp"

namespace kor {

namespace detail {

template <class T>
constexpr bool converts_to(Conversion conversion)
{
    switch (conversion) {
    case Conversion::text:
        return std::is_convertible_v<T, const char *>;
    case Conversion::integer:
        return std::is_integral_v<T>;
    case Conversion::real:
        return std::is_floating_point_v<T>;
    }
    return false;
}

template <Integer code, class... Args>
constexpr bool arguments_fit()
{
    constexpr Conversions expected = conversions_of(kCatalogue[code]);
    if (!expected.well_formed || expected.count != sizeof...(Args)) return false;
    std::size_t i = 0;
    return (converts_to<Args>(expected.kind[i++]) && ... && true);
}

// What travels through the ellipsis: %ld takes a long, whatever the width of an Integer. Taken by reference: a text may live in
// the argument itself.
template <class T>
auto promoted(const T &value)
{
    if constexpr (std::is_integral_v<T>)
        return static_cast<long>(value);
    else if constexpr (std::is_floating_point_v<T>)
        return static_cast<double>(value);
    else
        return static_cast<const char *>(value);
}

} // namespace detail

class Report {
  public:
    // Entry of a routine: the record forgets what an earlier call left in it.
    Report(const char *routine, KorError *fail) : routine_{routine}, fail_{fail}
    {
        if (fail_ != nullptr) {
            fail_->code = NE_NOERROR;
            fail_->errnum = 0;
        }
    }

    // Reports the catalogue entry `code`, filled in with `args`: the compiler checks that they fit its conversions.
    // Returns nothing, so that a check reads `if (bad) return report.error<...>(...);`.
    template <Integer code, class... Args>
    [[gnu::cold]] void error(Args... args) const
    {
        static_assert(code > NE_NOERROR && code < KOR_ERROR_COUNT, "not an error code");
        static_assert(detail::arguments_fit<code, Args...>(), "the arguments do not fit the entry's conversions");
        if constexpr (sizeof...(Args) == 0)
            error_as_it_stands(code);
        else
            format_and_report(code, detail::promoted(args)...);
    }

    // Reports the entry with its conversions unfilled.
    [[gnu::cold]] void error_as_it_stands(Integer code) const { p01acc(nullptr, code, routine_, fail_); }

    // A user function raised its flag.
    [[gnu::cold]] void user_stop(Integer userflag) const
    {
        set_errnum(userflag);
        error<NE_USER_STOP>(userflag);
    }

    void set_errnum(Integer status) const
    {
        if (fail_ != nullptr) fail_->errnum = status;
    }

    void success() const
    {
        if (fail_ == nullptr) return;
        if (fail_->handler != nullptr) return p01acc(nullptr, NE_NOERROR, routine_, fail_);
        // What p01acc would do, in a few moves: short routines spend less time than it would take to call it.
        static constexpr std::string_view text{kCatalogue[NE_NOERROR]};
        fail_->code = NE_NOERROR;
        std::memcpy(fail_->message, text.data(), text.size() + 1);
    }

    const char *routine() const { return routine_; }

  private:
    [[gnu::cold]] void format_and_report(Integer code, ...) const;

    const char *routine_;
    KorError *fail_;
};

} // namespace kor
