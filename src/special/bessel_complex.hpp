// Bessel functions of complex argument and of orders fnu, fnu + 1, ..., fnu + n - 1: the kernels s17d and s18d.
//
// Principal branches, cut along the negative real axis: z = x + i 0 lies on its upper side, x - i 0 on its lower. All orders
// are computed in long double; the error of a value is about an ulp of the modulus of the function, which next to a zero
// means of its neighbours in order.
#pragma once

#include <kor.h>

namespace kor::special {

enum class Scaling : char {
    none = 'U',
    exponential = 'S', // exp(-|Re z|) I, exp(z) K, exp(-|Im z|) J, exp(-|Im z|) Y
};

enum BesselStatus : Integer {
    kBesselDone = 0,
    kBesselArgument = 1,      // fnu is negative or above 1e5, n is not from 1 to 128, z is not finite; cy is not set
    kBesselOverflow = 2,      // values too large for a double are replaced by the largest one, with their signs; z = 0
    kBesselSomeLoss = 3,      // the phase exceeds 9.5e7: the argument fixes less than half of the digits; cy is set
    kBesselTotalLoss = 4,     // the phase exceeds 1e16; cy is zero
    kBesselNotTerminated = 5, // a recurrence was too long; cy is zero
};

// Each sets cy[0..n-1], counts in `nz` the values that underflow to zero, and returns a BesselStatus.
Integer s17def_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz); // J
Integer s17dcf_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz); // Y
Integer s18def_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz); // I
Integer s18dcf_f(double fnu, Complex z, Integer n, Scaling scaling, Complex cy[], Integer *nz); // K

} // namespace kor::special
