// One sequence by the multiple-sequence engine, beside FFTW on split arrays with plans that were estimated or measured,
// pocketfft and GSL's mixed radix. Tables and plans are made beforehand.
#include "transforms/contestants.hpp"

namespace {

const kor::bench::Heading heading{"Fourier transforms of one sequence with a table, ns an element",
                                  "relative error in the L2 norm, in units of 2^-52 log2 n"};

const bool registered = [] {
    using namespace kor::bench;
    for (const Data data : {Data::complex, Data::real})
        for (const int n : lengths(4194304)) Race{data, {1, n}}.enter<Multiple>("KOR").enter_fftw().enter_peers();
    return true;
}();

} // namespace
