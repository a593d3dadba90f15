// Quarter-wave sine and cosine transforms, in both directions.
//
// Forward: sums and differences of mirrored elements, turned by the angle pi j / (2n), are a real sequence of length n
// whose transform holds sums and differences of neighbouring results. Backward: the same steps undone in the opposite
// order. P. N. Swarztrauber, Math. Comp. 47 (1986) 323-346.
#include "transforms/quarter_wave.hpp"

#include <algorithm>

#include "transforms/hermitian.hpp"
#include "transforms/kernels.hpp"
#include "transforms/rows.hpp"

namespace kor::transforms {

namespace {

constexpr Index kRowsAtATime = 16;

class Turned {
  public:
    Turned(Kind kind, Index m, Index n, const double *trig)
        : rows_{kind, n, trig}, together_{std::min(m, kRowsAtATime)}, m_{m}, n_{n}
    {
    }

    bool prepare()
    {
        if (!work_.allocate(Count{together_} * Count{n_}) || !roots_.allocate(Count{2} * Count{n_})) return false;
        if (!rows_.prepare(together_)) return false;
        // cos(pi j / (2n)) and -sin(pi j / (2n)), j = 1..n-1.
        kernels().unit_roots(4 * n_, 1, 1, n_ - 1, roots_.data(), roots_.data() + n_);
        return true;
    }

    double cosine(Index j) const { return roots_[j - 1]; }
    double sine(Index j) const { return -roots_[n_ + j - 1]; }

    // For each row: before(row of x, w), the transform of w, after(row of x, w).
    template <class Before, class After>
    void run(double *x, Before before, After after)
    {
        for (Index first = 0; first < m_; first += together_, x += together_ * n_) {
            const Index count = std::min(together_, m_ - first);
            for (Index i = 0; i < count; ++i) before(x + i * n_, work_.data() + i * n_);
            rows_.transform(count, {work_.data(), nullptr});
            for (Index i = 0; i < count; ++i) after(x + i * n_, work_.data() + i * n_);
        }
    }

  private:
    Rows rows_;
    Index together_, m_, n_;
    Workspace<double> work_, roots_;
};

} // namespace

bool quarter_wave_forward(QuarterWave wave, Integer m, Integer n, double *x, const double *trig)
{
    const bool sine = wave == QuarterWave::sine;
    Turned turned{Kind::real, m, n, trig};
    if (!turned.prepare()) return false;
    turned.run(
        x,
        [&](const double *row, double *w) {
            w[0] = sine ? row[n - 1] : row[0];
            for (Index j = 1; j < n; ++j) {
                const double a = sine ? row[j - 1] : row[j], b = sine ? row[n - j - 1] : row[n - j];
                const double with_sum = sine ? turned.cosine(j) : turned.sine(j);
                const double with_difference = sine ? turned.sine(j) : turned.cosine(j);
                w[j] = with_sum * (a + b) + with_difference * (a - b);
            }
        },
        [&](double *row, const double *w) {
            row[0] = 0.5 * w[0];
            for (Index k = 1; 2 * k < n; ++k) {
                const double sum = 0.5 * (w[k] + w[n - k]), difference = 0.5 * (w[k] - w[n - k]);
                row[2 * k - 1] = sine ? -sum : difference;
                row[2 * k] = sine ? difference : sum;
            }
            if (n % 2 == 0) row[n - 1] = sine ? -0.5 * w[n / 2] : 0.5 * w[n / 2];
        });
    return true;
}

bool quarter_wave_backward(QuarterWave wave, Integer m, Integer n, double *x, const double *trig)
{
    const bool sine = wave == QuarterWave::sine;
    Turned turned{Kind::hermitian, m, n, trig};
    if (!turned.prepare()) return false;
    turned.run(
        x,
        [&](const double *row, double *w) {
            w[0] = 2.0 * row[0];
            for (Index k = 1; 2 * k < n; ++k) {
                const double sum = row[2 * k] + row[2 * k - 1], difference = row[2 * k] - row[2 * k - 1];
                w[k] = sine ? difference : sum;
                w[n - k] = sine ? -sum : difference;
            }
            if (n % 2 == 0) w[n / 2] = sine ? -2.0 * row[n - 1] : 2.0 * row[n - 1];
            conjugate_packed(n, w);
        },
        [&](double *row, const double *w) {
            for (Index j = 1; j < n; ++j) {
                const double sum = w[j] + w[n - j], difference = w[j] - w[n - j];
                if (sine)
                    row[j - 1] = 0.5 * (turned.cosine(j) * difference + turned.sine(j) * sum);
                else
                    row[j] = 0.5 * (turned.cosine(j) * sum + turned.sine(j) * difference);
            }
            row[sine ? n - 1 : 0] = w[0];
        });
    return true;
}

} // namespace kor::transforms
