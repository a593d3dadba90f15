// g01faz_f: the normal deviate of a lower tail.
#include "stats/kernels.hpp"
#include "stats/normal_law.hpp"

namespace kor::stats {

double g01faz_f(double p) { return normal_quantile(p); }

} // namespace kor::stats
