// x01aaf_f: pi.
#include "frame/constants.hpp"

namespace kor {

double x01aaf_f() { return kPi; }

} // namespace kor
