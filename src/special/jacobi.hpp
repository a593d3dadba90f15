// Jacobi's elliptic functions.
#pragma once

#include <complex>

namespace kor::special {

template <class T>
struct JacobiElliptic {
    T sn, cn, dn;
};

// sn, cn, dn of u with parameter m = 1 - complement, both from [0, 1] and both given, since either may be tiny.
JacobiElliptic<double> jacobi_elliptic(double u, double m, double complement);

JacobiElliptic<std::complex<double>> jacobi_elliptic(std::complex<double> u, double m);

} // namespace kor::special
