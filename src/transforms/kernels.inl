// The kernels of one generation of processors. The includer has included kernel_headers.hpp, opened a namespace of its
// own and chosen KOR_LANES; and KOR_KERNELS_BELOW, the kernels of the generation below, if there is one.

// In this order: each builds on those before it.
// clang-format off
#include "transforms/lanes.inl"
#include "transforms/butterflies.inl"
#include "transforms/unit_roots.inl"
#include "transforms/transposes.inl"
#include "transforms/radices.inl"
#include "transforms/complex_passes.inl"
#include "transforms/lead_passes.inl"
#include "transforms/real_passes.inl"
#include "transforms/alone.inl"
// clang-format on

// Calls body with the type that stands for the stage's radix; no large prime.
template <class Body>
KOR_INLINE void with_small_radix(const Stage &stage, Body body)
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
    case 7:
        return body(std::type_identity<Fixed<7>>{});
    default:
        return body(std::type_identity<Prime>{});
    }
}

// The same for every stage.
template <class Body>
KOR_INLINE void with_radix(const Stage &stage, Body body)
{
    if (stage.prime != nullptr) return body(std::type_identity<LargePrime>{});
    with_small_radix(stage, body);
}

// The same for a stage that is a whole transform.
template <Kind kind, class Body>
KOR_INLINE void with_whole_radix(const Stage &stage, Body body)
{
    const auto is_this = [&]<int p>(Constant<p>) KOR_INLINED
    {
        if constexpr (has_butterfly(kind, p)) {
            if (stage.radix != p) return false;
            body(std::type_identity<Fixed<p>>{});
            return true;
        }
        return false;
    };
    const bool done = [&]<int... p>(std::integer_sequence<int, p...>) KOR_INLINED
    {
        return (is_this(Constant<p>{}) || ...);
    }
    (std::make_integer_sequence<int, kLongestButterfly + 1>{});
    if (!done) with_radix(stage, body);
}

template <Kind kind>
void any_whole(const Stage &stage, const Block &block, Sequence in, Sequence out, double scale)
{
    [[maybe_unused]] bool done = false;
    with_whole_radix<kind>(stage, [&]<class Radix>(std::type_identity<Radix>) {
        if constexpr (kind == Kind::complex)
            done = complex_whole<Radix>(stage, block, in, out, scale);
        else if constexpr (kind == Kind::real)
            done = packed_whole<Radix, RealDirection>(stage, block, in.re, out.re, scale);
        else
            done = packed_whole<Radix, HermitianDirection>(stage, block, in.re, out.re, scale);
    });
#ifdef KOR_KERNELS_BELOW
    if (done) return;
    constexpr auto Kernels::*kWhole = kind == Kind::complex ? &Kernels::complex_whole
                                      : kind == Kind::real  ? &Kernels::real_whole
                                                            : &Kernels::hermitian_whole;
    (KOR_KERNELS_BELOW.*kWhole)(stage, block, in, out, scale);
#endif
}

inline constexpr Kernels kKernels{
    .lanes = kLanes,
    .alone = alone_table(),
    .unit_roots = unit_roots,
    .root_table = root_table,
    .transpose = transpose,
    .swap_transposed = swap_transposed,
    .complex_pass =
        [](const Stage &stage, const Block &block, Sequence in, Sequence out) {
            with_radix(stage, [=, &stage, &block]<class Radix>(std::type_identity<Radix>) {
                complex_pass<Radix>(stage, block, in, out);
            });
        },
    .real_pass =
        [](const Stage &stage, const Block &block, Sequence in, Sequence out) {
            with_radix(stage, [=, &stage, &block]<class Radix>(std::type_identity<Radix>) {
                packed_pass<Radix, RealDirection>(stage, block, in.re, out.re);
            });
        },
    .hermitian_pass =
        [](const Stage &stage, const Block &block, Sequence in, Sequence out) {
            with_radix(stage, [=, &stage, &block]<class Radix>(std::type_identity<Radix>) {
                packed_pass<Radix, HermitianDirection>(stage, block, in.re, out.re);
            });
        },
    .complex_lead = any_complex_lead,
    .complex_whole = any_whole<Kind::complex>,
    .real_whole = any_whole<Kind::real>,
    .hermitian_whole = any_whole<Kind::hermitian>,
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
            with_small_radix(stage, [=, &stage, &block, &columns, &factors]<class Radix>(std::type_identity<Radix>) {
                factors_pass_forward<Radix>(stage, block, columns, factors, in, out);
            });
        },
    .factors_pass_back =
        [](const Stage &stage, const Block &block, const Columns &columns, const Factored &factors, Sequence in,
           Sequence out) {
            with_small_radix(stage, [=, &stage, &block, &columns, &factors]<class Radix>(std::type_identity<Radix>) {
                factors_pass_back<Radix>(stage, block, columns, factors, in, out);
            });
        },
};
