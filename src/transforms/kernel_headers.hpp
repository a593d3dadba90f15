// What kernels.inl needs from elsewhere. Included before any code for a certain generation of processors begins, so
// that no function of these headers is compiled for it and then shared with the rest of the library; for the same
// reason kernels.inl calls no function templates of the standard library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "transforms/kernels.hpp"
#include "transforms/prime_length.hpp"
