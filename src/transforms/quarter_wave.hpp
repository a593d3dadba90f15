// Quarter-wave sine and cosine transforms, in both directions.
#pragma once

#include <kor.h>

namespace kor::transforms {

enum class QuarterWave { sine, cosine };

// m rows of n elements, `trig` the table for n. False, with the data untouched, when there is no memory.
bool quarter_wave_forward(QuarterWave wave, Integer m, Integer n, double *x, const double *trig);
bool quarter_wave_backward(QuarterWave wave, Integer m, Integer n, double *x, const double *trig);

} // namespace kor::transforms
