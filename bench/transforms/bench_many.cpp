// Many sequences at once, about a quarter of a million elements in all.
#include <algorithm>

#include "transforms/contestants.hpp"

namespace {

const kor::bench::Heading heading{"Fourier transforms of many sequences, ns an element",
                                  "relative error in the L2 norm, in units of 2^-52 log2 n"};

const bool registered = [] {
    using namespace kor::bench;
    for (const Data data : {Data::complex, Data::real})
        for (const int n : lengths(65537))
            Race{data, {std::max(2, 262144 / n), n}}.enter<Multiple>("KOR").enter_fftw().enter_peers();
    return true;
}();

} // namespace
