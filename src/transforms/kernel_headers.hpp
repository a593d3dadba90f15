// What kernels.inl needs from elsewhere. Included before any code for a certain generation of processors begins, so that
// no function of these headers is compiled for it and then shared with the rest of the library.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "transforms/kernels.hpp"
#include "transforms/prime_length.hpp"
