// One sequence in place without table or memory, beside engines that have both: the peers' tables are made beforehand, ours as it
// goes.
#include "transforms/contestants.hpp"

namespace {

const kor::bench::Heading heading{"Fourier transforms in place, without tables, ns an element",
                                  "relative error in the L2 norm, in units of 2^-52 log2 n"};

const bool registered = [] {
    using namespace kor::bench;
    for (const Data data : {Data::complex, Data::real})
        for (const int n : lengths(1048576))
            if (InPlace::suits(n))
                Race{data, {1, n}}.enter<InPlace>("KOR").enter<Multiple>("KOR with a table").enter_peers();
    return true;
}();

} // namespace
