// x05aac: the clock, in seconds.
#include <kor/x05.h>

#include <ctime>

#include "frame/report.hpp"

Integer x05aac(void)
{
    const std::time_t now = std::time(nullptr);
    if (now == static_cast<std::time_t>(-1)) kor::Report{"x05aac", nullptr}.error<NE_SYSTEM_TIME>();
    // The lower 31 bits: never negative, and still changing every second after 2038.
    constexpr std::time_t low_bits = 0x7fffffff;
    return static_cast<Integer>(now & low_bits);
}
