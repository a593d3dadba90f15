// x04bat: does nothing; kernels call it where other systems would flush a unit.
#include "frame/units.hpp"

namespace kor {

void x04bat() {}

} // namespace kor
