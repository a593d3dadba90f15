// x04mbc: error code by its key.
#include <kor/x04.h>

#include <string_view>

namespace {

constexpr Integer kUnknown = -5438;

// Two keys differ from the catalogue's, and callers rely on both: 635 goes by another name, and 700 is not to be found.
constexpr Integer kRenamed = NE_INPUT_NARMA;
constexpr std::string_view kRenamedKey = "NE_ARIMA_INPUT_NPAR";
constexpr Integer kLastFound = NE_INFINITE;

constexpr std::string_view kKeys[] = {
#define KOR_ERROR(key, text) #key,
#include <kor/errors.def>
#undef KOR_ERROR
};

} // namespace

Integer x04mbc(const char *name)
{
    const std::string_view wanted{name};
    for (Integer code = 0; code <= kLastFound; ++code)
        if (wanted == (code == kRenamed ? kRenamedKey : kKeys[code])) return code;
    return kUnknown;
}
