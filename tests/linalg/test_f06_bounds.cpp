// Operations read nothing beyond the ends of their arrays: these end where memory may not be touched.
#include <kor/f06.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

namespace kor::testing {
namespace {

// An array whose last element, or whose first, lies against forbidden memory.
class Guarded {
  public:
    explicit Guarded(std::size_t count) : count_{count}
    {
        const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        bytes_ = (count * sizeof(Complex) / page + 1) * page;
        base_ = static_cast<char *>(mmap(nullptr, bytes_ + 2 * kGuard, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        mprotect(base_ + kGuard, bytes_, PROT_READ | PROT_WRITE);
    }
    Guarded(const Guarded &) = delete;
    Guarded &operator=(const Guarded &) = delete;
    ~Guarded() { munmap(base_, bytes_ + 2 * kGuard); }
    Complex *at_the_end() const { return reinterpret_cast<Complex *>(base_ + kGuard + bytes_) - count_; }
    Complex *at_the_start() const { return reinterpret_cast<Complex *>(base_ + kGuard); }

  private:
    static constexpr std::size_t kGuard = std::size_t{1} << 20;
    std::size_t count_, bytes_;
    char *base_;
};

TEST(Bounds, ComplexMatrixTimesStridedVector)
{
    constexpr Integer n = 66, increment = 71;
    for (const Integer trans : {NoTranspose, Transpose, ConjugateTranspose})
        for (const Integer m : {1, 2, 4, 7})
            for (const Integer inc : {increment, -increment}) {
                const bool turned = trans != NoTranspose;
                const Integer length = turned ? m : n, results = turned ? n : m;
                const Guarded room(static_cast<std::size_t>(increment) * static_cast<std::size_t>(length - 1) + 1);
                Complex *const x = inc > 0 ? room.at_the_end() : room.at_the_start();
                const std::vector<Complex> a(static_cast<std::size_t>(m * n), Complex{1.0, 0.0});
                std::vector<Complex> y(static_cast<std::size_t>(results), Complex{1.0, 1.0});
                for (Integer i = 0; i < length; ++i) x[i * increment] = {1.0, 0.5};
                f06sac(trans, m, n, {2.0, 0.0}, a.data(), n, x, inc, {1.0, 0.0}, y.data(), 1);
                for (const Complex &element : y) {
                    EXPECT_EQ(element.re, 1.0 + 2.0 * length);
                    EXPECT_EQ(element.im, 1.0 + length);
                }
            }
}

TEST(Bounds, ProductOfStridedComplexVectors)
{
    for (const Integer n : {1, 3, 5, 6, 7, 9, 30})
        for (const Integer inc : {2, -2, 3, -3, 71, -71}) {
            const Integer step = inc > 0 ? inc : -inc;
            const Guarded x_room(static_cast<std::size_t>(step) * static_cast<std::size_t>(n - 1) + 1);
            const Guarded y_room(static_cast<std::size_t>(n));
            Complex *const x = inc > 0 ? x_room.at_the_end() : x_room.at_the_start();
            Complex *const y = y_room.at_the_end();
            for (Integer i = 0; i < n; ++i) x[i * step] = y[i] = {1.0, 1.0};
            EXPECT_EQ(f06gbc(n, x, inc, y, 1).re, 2.0 * n);
        }
}

} // namespace
} // namespace kor::testing
