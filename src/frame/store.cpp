// store: rounds a value to double on an arithmetic unit that is wider.
#include "frame/exact.hpp"

#if FLT_EVAL_METHOD != 0
namespace kor {

__attribute__((noinline, noipa)) double store(double x) { return x; }

} // namespace kor
#endif
