// The kernels of one generation of processors. The includer has included kernel_headers.hpp, opened a namespace of its own
// and chosen KOR_LANES.

// In this order: each builds on those before it.
// clang-format off
#include "transforms/lanes.inl"
#include "transforms/butterflies.inl"
#include "transforms/unit_roots.inl"
#include "transforms/radices.inl"
#include "transforms/complex_passes.inl"
#include "transforms/real_passes.inl"
// clang-format on

// Calls body with the type that stands for the stage's radix.
template <class Body>
KOR_INLINE void with_radix(const Stage &stage, Body body)
{
    switch (stage.radix) {
    case 2:
        return body(std::type_identity<Fixed<2>>{});
    case 3:
        return body(std::type_identity<Fixed<3>>{});
    case 4:
        return body(std::type_identity<Fixed<4>>{});
    case 5:
        return body(std::type_identity<Fixed<5>>{});
    case 6:
        return body(std::type_identity<Fixed<6>>{});
    default:
        if (stage.prime != nullptr) return body(std::type_identity<LargePrime>{});
        return body(std::type_identity<Prime>{});
    }
}

inline constexpr Kernels kKernels{
    unit_roots,
    [](const Stage &stage, Index batch, const double *in_re, const double *in_im, double *out_re, double *out_im,
       double scale) {
        with_radix(stage, [=, &stage]<class Radix>(std::type_identity<Radix>) {
            complex_across_pass<Radix>(stage, batch, in_re, in_im, out_re, out_im, scale);
        });
    },
    [](const Stage &stage, const double *in_re, const double *in_im, double *out_re, double *out_im) {
        with_radix(stage, [=, &stage]<class Radix>(std::type_identity<Radix>) {
            complex_along_pass<Radix>(stage, in_re, in_im, out_re, out_im);
        });
    },
    [](const Stage &stage, Index batch, const double *in, double *out, double scale) {
        with_radix(stage, [=, &stage]<class Radix>(std::type_identity<Radix>) {
            packed_across_pass<Radix, RealDirection>(stage, batch, in, out, scale);
        });
    },
    [](const Stage &stage, const double *in, double *out) {
        with_radix(stage, [=, &stage]<class Radix>(std::type_identity<Radix>) {
            packed_along_pass<Radix, RealDirection>(stage, in, out);
        });
    },
    [](const Stage &stage, Index batch, const double *in, double *out, double scale) {
        with_radix(stage, [=, &stage]<class Radix>(std::type_identity<Radix>) {
            packed_across_pass<Radix, HermitianDirection>(stage, batch, in, out, scale);
        });
    },
    [](const Stage &stage, const double *in, double *out) {
        with_radix(stage, [=, &stage]<class Radix>(std::type_identity<Radix>) {
            packed_along_pass<Radix, HermitianDirection>(stage, in, out);
        });
    },
};
