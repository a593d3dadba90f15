// Transforms of one sequence in place, without tables from the caller.
//
// Real and complex sequences are permuted first; Hermitian ones go the same way backwards. What works on a block, or on
// a few columns of the array, copies them to the stack, transforms them there as the multiple-sequence engine does, and
// copies the result back.
#include "transforms/in_place.hpp"

#include <algorithm>
#include <bit>

#include "frame/workspace.hpp"
#include "transforms/passes.hpp"
#include "transforms/root_table.hpp"

namespace kor::transforms {

namespace {

// A sweep over the data takes no dimension larger than this, and works on this many elements at a time.
constexpr Index kLargestDimension = 256;
constexpr Index kGathered = 2048;

// The least divisor of n, if any, that is not less than `least`.
Index divisor_from(Index n, Index least)
{
    for (Index d = std::max(least, Index{1}); d <= n; ++d)
        if (n % d == 0) return d;
    return 0;
}

} // namespace

Dimensions::Dimensions(Index length, InPlaceFactors factors) : n{length}
{
    // As few dimensions as the sizes allow: the mirrored ones no more than are needed to bring the rest down to a
    // block.
    const Index needed = n <= kLargestBlock ? 1 : std::max((n + kLargestBlock - 1) / kLargestBlock, kLine);
    const Index square_root = factors.square_root, wanted = divisor_from(square_root, needed);
    mirrored_product = wanted > 0 ? wanted : square_root;
    const Index middle = n / (mirrored_product * mirrored_product);

    // Appends dimensions whose product is `product`, as even in size as its primes allow.
    const auto append = [&](Index product) {
        while (product > 1) {
            Index pieces = 1;
            for (Index reach = kLargestDimension; reach < product; reach *= kLargestDimension) ++pieces;
            Index least = 1;
            while ([&] {
                Index power = 1;
                for (Index i = 0; i < pieces; ++i) power *= least;
                return power < product;
            }())
                ++least;
            Index piece = divisor_from(product, least);
            if (piece > kLargestDimension)
                for (piece = kLargestDimension; product % piece != 0;) --piece;
            size[count++] = piece;
            product /= piece;
        }
    };
    if (mirrored_product > 1) append(mirrored_product);
    mirrored = count;
    if (wanted > 0) {
        if (middle > 1) size[count++] = middle;
    } else {
        append(middle);
    }
    for (int i = mirrored - 1; i >= 0; --i) size[count++] = size[i];

    block_from = count;
    while (block_from > 0 && block * size[block_from - 1] <= kLargestBlock) block *= size[--block_from];
}

namespace {

// What a sweep or the transform of blocks needs on the stack.
struct alignas(sizeof(double) * kLine) Stack {
    double table[2 * kLargestDimension]; // of a dimension
    double straight[2 * kLargestBlock];  // a block in its natural order
    double work[8 * kGathered];
    double bases[2 * kLargestDimension];
};

// Blocks of several dimensions arrive with their digits turned round: (i_1, .., i_k) for what is element (i_k, ..,
// i_1). `kBack` turns them round again.
template <bool kBack>
void turn_digits(const Index *size, int count, const double *in, double *out)
{
    const Index first = size[0], last = size[count - 1];
    Index middle = 1;
    for (int i = 1; i < count - 1; ++i) middle *= size[i];
    const Kernels &kernel = kernels_for_length(first * last);
    for (Index m = 0; m < middle; ++m) {
        Index turned = 0;
        for (Index i = count - 2, rest = m; i > 0; rest /= size[i--]) turned = turned * size[i] + rest % size[i];
        // `out` has the dimensions the other way round.
        if (kBack)
            kernel.transpose(last, first, in + turned * first, middle * first, out + m * last, middle * last);
        else
            kernel.transpose(first, last, in + m * last, middle * last, out + turned * first, middle * first);
    }
}

// The roots for blocks, kept by each thread from one call to the next: most programs transform one length again and
// again. They lie on the heap, for a library with much storage of its own for threads cannot be loaded by a running
// program. Null when there is no memory.
const double *kept_table(Index block)
{
    struct Kept {
        Workspace<double> table;
        Index block = 0;
    };
    static thread_local Kept kept;
    if (!kept.table && !kept.table.allocate(Count{2} * kLargestBlock)) return nullptr;
    if (kept.block != block) {
        fill_root_table(block, kept.table.data());
        kept.block = block;
    }
    return kept.table.data();
}

void transform_blocks(const Dimensions &d, const double *table, Kind kind, Sequence x, double scale, Stack &stack)
{
    const Plan plan{kind, d.block, table};
    const int dimensions = d.count - d.block_from;
    const Index *const size = d.size + d.block_from;
    const bool complex = kind == Kind::complex;
    const Sequence straight{stack.straight, complex ? stack.straight + d.block : nullptr};

    for (Index at = 0; at < d.n; at += d.block) {
        const Sequence block = shifted(x, at);
        if (dimensions <= 1) {
            plan.transform(block, block, scale, stack.work);
        } else if (kind == Kind::hermitian) {
            plan.transform(block, straight, scale, stack.work);
            turn_digits<true>(size, dimensions, straight.re, block.re);
        } else {
            turn_digits<false>(size, dimensions, block.re, straight.re);
            if (complex) turn_digits<false>(size, dimensions, block.im, straight.im);
            plan.transform(straight, block, scale, stack.work);
        }
    }
}

void transform_blocks(const Dimensions &d, Kind kind, Sequence x, double scale, Stack &stack)
{
    if (const double *const table = kept_table(d.block); table != nullptr)
        return transform_blocks(d, table, kind, x, scale, stack);
    double table[2 * kLargestBlock];
    fill_root_table(d.block, table);
    transform_blocks(d, table, kind, x, scale, stack);
}

// The sweep for one dimension of size L: it joins the elements f + v l of contiguous blocks of L v, or packed Hermitian
// sequences of length v in their place. Columns f are transformed a few at a time.
class Sweep {
  public:
    Sweep(Index n, Index radix, Index v, Stack &stack)
        : n_{n}, radix_{radix}, v_{v}, stack_{stack}, stages_{radix, stack.table},
          row_{std::min(kGathered / radix, v / 8 > kLine ? v / 8 / kLine * kLine : std::max(v / 8, Index{1}))},
          roots_{stack.work + 4 * kGathered, stack.work + 4 * kGathered + radix * row_}
    {
        fill_root_table(radix, stack.table);
        kernels().roots_less_one(radix * v, radix, row_, roots_);
    }

    void complex(Sequence x)
    {
        over_columns(0, v_, [&](Index f, const Factored &factors, Array block0, Array block1) {
            for (Index block = 0; block < n_; block += radix_ * v_) {
                const Array columns{shifted(x, block + f), v_};
                run_passes(0, last(), columns, columns, block0, block1, [&](int i, Array from, Array to) {
                    if (i == 0)
                        kernels().factors_pass(stages_.stage[i], shape(i, from, to), {}, factors, from.at, to.at);
                    else
                        kernels().complex_pass(stages_.stage[i], shape(i, from, to), from.at, to.at);
                });
            }
        });
    }

    void real(double *x)
    {
        over_columns(1, (v_ - 1) / 2, [&](Index f, const Factored &factors, Array block0, Array block1) {
            for (Index block = 0; block < n_; block += radix_ * v_) {
                const Array columns{{x + block, nullptr}, v_};
                run_passes(0, last(), columns, columns, block0, block1, [&](int i, Array from, Array to) {
                    const Columns which{v_, f, i == 0 ? ColumnsOf::short_sequences : ColumnsOf::complex_block,
                                        i == last() ? ColumnsOf::long_sequence : ColumnsOf::complex_block, radix_};
                    if (i == 0 || i == last())
                        kernels().factors_pass(stages_.stage[i], shape(i, from, to), which, factors, from.at, to.at);
                    else
                        kernels().complex_pass(stages_.stage[i], shape(i, from, to), from.at, to.at);
                });
            }
        });
        single_columns(x, false);
    }

    void hermitian(double *x)
    {
        over_columns(1, (v_ - 1) / 2, [&](Index f, const Factored &factors, Array block0, Array block1) {
            for (Index block = 0; block < n_; block += radix_ * v_) {
                const Array columns{{x + block, nullptr}, v_};
                run_passes(0, last(), columns, columns, block0, block1, [&](int i, Array from, Array to) {
                    const Columns which{v_, f, i == 0 ? ColumnsOf::long_sequence : ColumnsOf::complex_block,
                                        i == last() ? ColumnsOf::short_sequences : ColumnsOf::complex_block, radix_};
                    if (i == 0 || i == last())
                        kernels().factors_pass_back(stages_.stage[i], shape(i, from, to), which, factors, from.at,
                                                    to.at);
                    else
                        kernels().complex_pass(stages_.stage[i], shape(i, from, to), from.at, to.at);
                });
            }
        });
        single_columns(x, true);
    }

  private:
    int last() const { return stages_.count - 1; }

    Block shape(int i, Array from, Array to) const
    {
        return {stages_.stage[i].before, stages_.stage[i].after, width_, from.row, to.row};
    }

    // Calls body(f, factors, block0, block1) for ranges of columns from `first` on, width_ of them at a time. Ranges do
    // not overlap, and whole registers are filled, or none: a pass in place cannot be repeated.
    template <class Body>
    void over_columns(Index first, Index count, Body body)
    {
        const Sequence bases{stack_.bases, stack_.bases + radix_};
        for (Index f = first, rest = count; rest > 0; f += width_, rest -= width_) {
            width_ = std::min(row_, rest);
            width_ = width_ >= kLine ? width_ / kLine * kLine
                                     : static_cast<Index>(std::bit_floor(static_cast<unsigned>(width_)));
            kernels().unit_roots(radix_ * v_, 0, f, radix_, bases.re, bases.im);
            body(f, Factored{bases, roots_, row_}, block(0), block(1));
        }
    }
    Array block(int i) const
    {
        double *const re = stack_.work + 2 * i * kGathered;
        return {{re, re + radix_ * width_}, width_};
    }

    // The columns f = 0 and, for even v, f = v/2, where the short sequences are real.
    void single_columns(double *x, bool back)
    {
        width_ = 1;
        const Array block0 = block(0), block1 = block(1);
        for (Index start = 0; start < n_; start += radix_ * v_) {
            const Array column{{x + start, nullptr}, v_};
            const bool up = back;
            run_passes(up ? 0 : last(), up ? last() : 0, column, column, block0, block1,
                       [&](int i, Array from, Array to) {
                           const auto pass = back ? kernels().hermitian_pass : kernels().real_pass;
                           pass(stages_.stage[i], shape(i, from, to), from.at, to.at);
                       });
        }
        if (v_ % 2 != 0) return;

        // With its factors, the middle column is complex: half of its transform is the conjugate of the other half.
        const Sequence bases{stack_.bases, stack_.bases + radix_};
        const Index half = v_ / 2;
        kernels().unit_roots(radix_ * v_, 0, half, radix_, bases.re, bases.im);
        const auto transform = [&] {
            return run_passes(0, last(), block0, kNone, block0, block1,
                              [&](int i, Array from, Array to) {
                                  kernels().complex_pass(stages_.stage[i], shape(i, from, to), from.at, to.at);
                              })
                .at;
        };
        for (double *start = x; start < x + n_; start += radix_ * v_) {
            const auto mirror_of = [&](Index k) { return start + (radix_ - k) * v_ - half; };
            if (back) {
                for (Index k = 0; 2 * k < radix_; ++k) {
                    const Index other = radix_ - 1 - k;
                    block0.at.re[k] = block0.at.re[other] = start[k * v_ + half];
                    block0.at.im[k] = k == other ? 0.0 : *mirror_of(k);
                    block0.at.im[other] = -block0.at.im[k];
                }
                const Sequence y = transform();
                for (Index l = 0; l < radix_; ++l) start[l * v_ + half] = y.re[l] * bases.re[l] - y.im[l] * bases.im[l];
            } else {
                for (Index l = 0; l < radix_; ++l) {
                    block0.at.re[l] = start[l * v_ + half] * bases.re[l];
                    block0.at.im[l] = start[l * v_ + half] * bases.im[l];
                }
                const Sequence y = transform();
                for (Index k = 0; 2 * k < radix_; ++k) {
                    start[k * v_ + half] = y.re[k];
                    if (2 * k + 1 < radix_) *mirror_of(k) = y.im[k];
                }
            }
        }
    }

    Index n_, radix_, v_, width_ = 1;
    Stack &stack_;
    Stages stages_;
    Index row_;      // columns at a time
    Sequence roots_; // factors of the columns of a range
};

// A length of one block.
void transform_block(Index n, Kind kind, Sequence x, double scale)
{
    alignas(sizeof(double) * kLine) double work[8 * kGathered];
    if (const double *const table = kept_table(n); table != nullptr)
        return Plan{kind, n, table}.transform(x, x, scale, work);
    double table[2 * kLargestBlock];
    fill_root_table(n, table);
    Plan{kind, n, table}.transform(x, x, scale, work);
}

// A length of many blocks.
void transform_blocks_and_sweep(Index n, InPlaceFactors factors, Kind kind, Sequence x, double scale)
{
    const Dimensions d{n, factors};
    Stack stack;
    if (kind == Kind::hermitian) {
        Index v = d.n;
        for (int i = 0; i < d.block_from; ++i) {
            v /= d.size[i];
            Sweep{d.n, d.size[i], v, stack}.hermitian(x.re);
        }
        transform_blocks(d, kind, x, scale, stack);
        c06eay_inverse(d, x.re);
        return;
    }
    c06eay(d, x.re);
    if (x.im != nullptr) c06eay(d, x.im);
    transform_blocks(d, kind, x, scale, stack);
    Index v = d.block;
    for (int i = d.block_from - 1; i >= 0; --i) {
        Sweep sweep{d.n, d.size[i], v, stack};
        kind == Kind::complex ? sweep.complex(x) : sweep.real(x.re);
        v *= d.size[i];
    }
}

} // namespace

void transform_longer_in_place(Index n, InPlaceFactors factors, Kind kind, Sequence x, double scale)
{
    if (n <= kLargestBlock) return transform_block(n, kind, x, scale);
    transform_blocks_and_sweep(n, factors, kind, x, scale);
}

} // namespace kor::transforms
