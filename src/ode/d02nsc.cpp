// d02nsc: chooses where the Jacobian of the backward differentiation method comes from.
#include <kor/d02.h>

#include <cctype>
#include <cstddef>
#include <cstring>

#include "ode/bdf.hpp"

namespace {

constexpr std::size_t kKeyLength = 6;

bool is_key(const char *text, const char *key)
{
    char upper[kKeyLength] = {};
    for (std::size_t i = 0; i < kKeyLength && text[i] != '\0'; ++i)
        upper[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[i])));
    return std::strncmp(upper, key, kKeyLength) == 0;
}

} // namespace

void d02nsc(Integer neq, const char *jceval, KorBdfState *st, Integer *status)
{
    *status = kor::ode::bdf_set_up(*st) ? 0 : 2;
    if (*status != 0) return;
    *status = 1;
    if (neq != st->neq) return;
    if (is_key(jceval, "ANALYT"))
        st->jacobian = KOR_BDF_ANALYTIC;
    else if (is_key(jceval, "NUMERI"))
        st->jacobian = KOR_BDF_NUMERICAL;
    else
        return;
    *status = 0;
}
