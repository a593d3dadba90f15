// x04abf_f: reads or sets the unit of advisory messages.
#include "frame/units.hpp"

#include <atomic>

namespace kor {

namespace {

std::atomic<Integer> nadv1{6}; // one of the few process-wide values

} // namespace

void x04abf_f(Integer i, Integer *nadv)
{
    if (i == 0)
        *nadv = nadv1.load(std::memory_order_relaxed);
    else if (i == 1)
        nadv1.store(*nadv, std::memory_order_relaxed);
}

} // namespace kor
