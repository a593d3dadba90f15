// f06aaz: tells of an illegal argument of a vector or matrix operation, and comes back.
#include "frame/report.hpp"
#include "linalg/arguments.hpp"

namespace kor::linalg {

void f06aaz(const char *routine, Integer position)
{
    KorError record{};
    record.print = 1;
    Report{routine, &record}.error<NE_F06_BAD_PARAM>(position);
}

} // namespace kor::linalg
