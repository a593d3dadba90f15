// The kernels of one generation of processors. The includer has included kernel_headers.hpp, opened a namespace of its own
// and chosen KOR_LANES.

// In this order: each builds on those before it.
// clang-format off
#include "transforms/lanes.inl"
#include "transforms/butterflies.inl"
#include "transforms/unit_roots.inl"
#include "transforms/transposes.inl"
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
    .lanes = kLanes,
    .unit_roots = unit_roots,
    .root_table = root_table,
    .transpose = transpose,
    .swap_transposed = swap_transposed,
    .complex_pass =
        [](const Stage &stage, const Block &block, Sequence in, Sequence out, double scale) {
            with_radix(stage, [=, &stage, &block]<class Radix>(std::type_identity<Radix>) {
                complex_pass<Radix>(stage, block, in, out, scale);
            });
        },
    .real_pass =
        [](const Stage &stage, const Block &block, Sequence in, Sequence out, double scale) {
            with_radix(stage, [=, &stage, &block]<class Radix>(std::type_identity<Radix>) {
                packed_pass<Radix, RealDirection>(stage, block, in.re, out.re, scale);
            });
        },
    .hermitian_pass =
        [](const Stage &stage, const Block &block, Sequence in, Sequence out, double scale) {
            with_radix(stage, [=, &stage, &block]<class Radix>(std::type_identity<Radix>) {
                packed_pass<Radix, HermitianDirection>(stage, block, in.re, out.re, scale);
            });
        },
    .columns_pass =
        [](const Stage &stage, const Block &block, const Columns &columns, Sequence in, Sequence out) {
            with_radix(stage, [=, &stage, &block, &columns]<class Radix>(std::type_identity<Radix>) {
                columns_pass_forward<Radix>(stage, block, columns, in, out);
            });
        },
    .columns_pass_back =
        [](const Stage &stage, const Block &block, const Columns &columns, Sequence in, Sequence out) {
            with_radix(stage, [=, &stage, &block, &columns]<class Radix>(std::type_identity<Radix>) {
                columns_pass_back<Radix>(stage, block, columns, in, out);
            });
        },
    .roots_less_one = roots_less_one,
    .factors_pass =
        [](const Stage &stage, const Block &block, const Columns &columns, const Factored &factors, Sequence in,
           Sequence out) {
            with_radix(stage, [=, &stage, &block, &columns, &factors]<class Radix>(std::type_identity<Radix>) {
                factors_pass_forward<Radix>(stage, block, columns, factors, in, out);
            });
        },
    .factors_pass_back =
        [](const Stage &stage, const Block &block, const Columns &columns, const Factored &factors, Sequence in,
           Sequence out) {
            with_radix(stage, [=, &stage, &block, &columns, &factors]<class Radix>(std::type_identity<Radix>) {
                factors_pass_back<Radix>(stage, block, columns, factors, in, out);
            });
        },
};
