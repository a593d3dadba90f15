// The error catalogue as a constant that the compiler can read: reports are checked against it when they are built.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include <kor.h>

namespace kor {

// One entry a code: key, colon, newline, two blanks, text. An empty string ends the table.
inline constexpr std::array<const char *, KOR_ERROR_COUNT + 1> kCatalogue = {
#define KOR_ERROR(key, text) #key ":\n  " text,
#include <kor/errors.def>
#undef KOR_ERROR
    ""};

// What a conversion of an entry takes.
enum class Conversion { text, integer, real };

inline constexpr std::size_t kMaxConversions = 16;

struct Conversions {
    std::array<Conversion, kMaxConversions> kind{};
    std::size_t count = 0;
    bool well_formed = true;
};

// The conversions of a printf format, in order. Known are s; d and i with l; e, f and g; and the doubled percent sign.
constexpr Conversions conversions_of(std::string_view format)
{
    Conversions found;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') continue;
        if (++i < format.size() && format[i] == '%') continue;
        while (i < format.size() && (format[i] == '.' || format[i] == '-' || (format[i] >= '0' && format[i] <= '9')))
            ++i;
        const bool wide = i < format.size() && format[i] == 'l';
        if (wide) ++i;
        if (i == format.size() || found.count == kMaxConversions) {
            found.well_formed = false;
            break;
        }
        switch (format[i]) {
        case 's':
            found.kind[found.count++] = Conversion::text;
            break;
        case 'd':
            found.kind[found.count++] = Conversion::integer;
            found.well_formed &= wide;
            break;
        case 'e':
        case 'f':
        case 'g':
            found.kind[found.count++] = Conversion::real;
            break;
        default:
            found.well_formed = false;
        }
    }
    return found;
}

} // namespace kor
