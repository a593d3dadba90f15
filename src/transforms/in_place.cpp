// Transforms of one sequence in place, without tables from the caller and without allocation.
//
// Real and complex sequences are permuted first; Hermitian ones go the same way backwards. What works on a block, or on a
// few columns of the array, copies them to the stack, transforms them there as the multiple-sequence engine does, and
// copies the result back.
#include "transforms/in_place.hpp"

#include <algorithm>

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

Dimensions::Dimensions(Index length, const InPlaceFactors &factors) : n{length}
{
    // As few dimensions as the sizes allow: the mirrored ones no more than are needed to bring the rest down to a block.
    const Index wanted = divisor_from(factors.square_root, (n + kLargestBlock - 1) / kLargestBlock);
    mirrored_product = wanted > 0 ? wanted : factors.square_root;
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

// What a sweep or a block needs on the stack.
struct alignas(sizeof(double) * kLine) Stack {
    double table[2 * kGathered];
    double gathered[2 * kGathered];
    double work[6 * kLargestBlock + 4 * kLine];
    double roots[2 * kLargestDimension];
};

// Transforms all blocks.
void transform_blocks(const Dimensions &d, Kind kind, Sequence x, double scale, Stack &stack)
{
    fill_root_table(d.block, stack.table);
    const Plan plan{kind, d.block, stack.table};
    const int dimensions = d.count - d.block_from;
    const Index *const size = d.size + d.block_from;

    // Calls visit(place, index) for the places in a permuted block and the indices in the unpermuted one.
    const auto walk = [&](auto visit) {
        Index digit[Dimensions::kMost] = {}, step[Dimensions::kMost];
        for (Index i = 0, product = 1; i < dimensions; product *= size[i++]) step[i] = product;
        for (Index place = 0, index = 0; place < d.block; ++place) {
            visit(place, index);
            for (int i = dimensions - 1; i >= 0; --i) {
                index += step[i];
                if (++digit[i] < size[i]) break;
                index -= digit[i] * step[i];
                digit[i] = 0;
            }
        }
    };

    for (Index at = 0; at < d.n; at += d.block) {
        const Sequence block{x.re + at, x.im != nullptr ? x.im + at : nullptr};
        if (dimensions <= 1) {
            plan.transform(block, block, scale, stack.work);
            continue;
        }
        const Sequence straight{stack.gathered, x.im != nullptr ? stack.gathered + d.block : nullptr};
        if (kind == Kind::hermitian) {
            plan.transform(block, block, scale, stack.work);
            std::copy_n(block.re, d.block, straight.re);
            walk([&](Index place, Index index) { block.re[place] = straight.re[index]; });
        } else {
            walk([&](Index place, Index index) { straight.re[index] = block.re[place]; });
            if (x.im != nullptr) walk([&](Index place, Index index) { straight.im[index] = block.im[place]; });
            plan.transform(straight, block, scale, stack.work);
        }
    }
}

// The sweep for one dimension of size L: elements f + v l of contiguous blocks of L v, or packed Hermitian sequences of
// length v in their place. Columns f are transformed a few at a time.
class Sweep {
  public:
    Sweep(Index n, Index radix, Index v, Stack &stack)
        : n_{n}, radix_{radix}, v_{v}, stack_{stack}, plan_{Kind::complex, radix, stack.roots}
    {
        fill_root_table(radix, stack.roots);
    }

    void complex(double *re, double *im)
    {
        for (Index f = 0; f < v_; f += width_) {
            width_ = std::min(most(), v_ - f);
            set_twiddles(f);
            for (Index block = 0; block < n_; block += radix_ * v_) {
                double *const r = re + block + f, *const i = im + block + f;
                gather([&](Index l, Index c) { return Value{r[l * v_ + c], i[l * v_ + c]}; });
                twiddle(gathered());
                transform();
                scatter([&](Index k, Index c, Value y) {
                    r[k * v_ + c] = y.re;
                    i[k * v_ + c] = y.im;
                });
            }
        }
    }

    void real(double *x)
    {
        real_ends(x);
        for (Index f = 1; 2 * f < v_; f += width_) {
            width_ = std::min(most(), (v_ + 1) / 2 - f);
            set_twiddles(f);
            for (Index block = 0; block < n_; block += radix_ * v_) {
                double *const up = x + block + f, *const down = x + block - f;
                gather([&](Index l, Index c) { return Value{up[l * v_ + c], down[(l + 1) * v_ - c]}; });
                twiddle(gathered());
                transform();
                scatter([&](Index k, Index c, Value y) {
                    const bool lower = 2 * k < radix_;
                    up[k * v_ + c] = lower ? y.re : -y.im;
                    down[(radix_ - k) * v_ - c] = lower ? y.im : y.re;
                });
            }
        }
    }

    void hermitian(double *x)
    {
        hermitian_ends(x);
        for (Index f = 1; 2 * f < v_; f += width_) {
            width_ = std::min(most(), (v_ + 1) / 2 - f);
            set_twiddles(f);
            for (Index block = 0; block < n_; block += radix_ * v_) {
                double *const up = x + block + f, *const down = x + block - f;
                gather([&](Index k, Index c) {
                    const double here = up[k * v_ + c], mirror = down[(radix_ - k) * v_ - c];
                    return 2 * k < radix_ ? Value{here, mirror} : Value{mirror, -here};
                });
                transform();
                twiddle(done_);
                scatter([&](Index l, Index c, Value y) {
                    up[l * v_ + c] = y.re;
                    down[(l + 1) * v_ - c] = y.im;
                });
            }
        }
    }

  private:
    struct Value {
        double re, im;
    };

    Index most() const { return std::max(kGathered / radix_, Index{1}); }
    Sequence gathered() const { return {stack_.gathered, stack_.gathered + radix_ * width_}; }

    template <class Read>
    void gather(Read read)
    {
        const auto [re, im] = gathered();
        for (Index l = 0; l < radix_; ++l)
            for (Index c = 0; c < width_; ++c) {
                const Value value = read(l, c);
                re[l * width_ + c] = value.re;
                im[l * width_ + c] = value.im;
            }
    }
    template <class Write>
    void scatter(Write write)
    {
        const auto [re, im] = done_;
        for (Index l = 0; l < radix_; ++l)
            for (Index c = 0; c < width_; ++c) write(l, c, Value{re[l * width_ + c], im[l * width_ + c]});
    }
    void transform()
    {
        const Sequence spare{stack_.work, stack_.work + radix_ * width_};
        done_ = plan_.transform_side_by_side(width_, gathered(), spare, 1.0);
    }

    // exp(-2 pi i l (f + c) / (L v)) for all l and the columns f + c at hand.
    void set_twiddles(Index f)
    {
        const Index length = radix_ * v_;
        for (Index l = 0; l < radix_; ++l)
            kernels().unit_roots(length, l * f % length, l, width_, twiddles(l), twiddles(l) + radix_ * width_);
    }
    double *twiddles(Index l) { return stack_.table + l * width_; }
    void twiddle(Sequence x)
    {
        const auto [re, im] = x;
        const double *const c = stack_.table, *const s = c + radix_ * width_;
        for (Index i = 0; i < radix_ * width_; ++i) {
            const double product = re[i] * c[i] - im[i] * s[i];
            im[i] = re[i] * s[i] + im[i] * c[i];
            re[i] = product;
        }
    }

    // The columns f = 0 and, for even v, f = v/2, where the short sequences are real.
    void real_ends(double *x)
    {
        width_ = 1;
        for (const Index f : {Index{0}, v_ / 2}) {
            if (f == 0 ? false : v_ % 2 != 0) break;
            set_twiddles(f);
            for (Index block = 0; block < n_; block += radix_ * v_) {
                double *const start = x + block;
                gather([&](Index l, Index) { return Value{start[l * v_ + f], 0.0}; });
                twiddle(gathered());
                transform();
                scatter([&](Index k, Index, Value y) {
                    const Index g = f + k * v_, mirror = radix_ * v_ - g;
                    if (g <= mirror) start[g] = y.re;
                    if (0 < g && g < mirror) start[mirror] = y.im;
                });
            }
            if (v_ == 1) break;
        }
    }
    void hermitian_ends(double *x)
    {
        width_ = 1;
        for (const Index f : {Index{0}, v_ / 2}) {
            if (f == 0 ? false : v_ % 2 != 0) break;
            set_twiddles(f);
            for (Index block = 0; block < n_; block += radix_ * v_) {
                double *const start = x + block;
                gather([&](Index k, Index) {
                    const Index g = f + k * v_, mirror = radix_ * v_ - g;
                    if (g == 0 || g == mirror) return Value{start[g], 0.0};
                    return g < mirror ? Value{start[g], start[mirror]} : Value{start[mirror], -start[g]};
                });
                transform();
                twiddle(done_);
                scatter([&](Index l, Index, Value y) { start[l * v_ + f] = y.re; });
            }
            if (v_ == 1) break;
        }
    }

    Index n_, radix_, v_, width_ = 1;
    Stack &stack_;
    Plan plan_;
    Sequence done_{}; // where the transformed columns stand
};

} // namespace

void transform_in_place(const Dimensions &d, Kind kind, Sequence x, double scale)
{
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
        kind == Kind::complex ? sweep.complex(x.re, x.im) : sweep.real(x.re);
        v *= d.size[i];
    }
}

} // namespace kor::transforms
