// The transforms of this library and of its peers behind one form, for the benchmarks of the chapter.
//
// A contestant owns its data, tables and plans; run() transforms the data in place, again and again. Ours and pocketfft scale by
// 1/sqrt(n), the others do not.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <kor/c06.h>

#include "support/ratio_table.hpp"

#if defined(KOR_HAVE_FFTW) || defined(KOR_HAVE_FFTWL)
#include <fftw3.h>
#endif
#ifdef KOR_HAVE_GSL
#include <gsl/gsl_fft_complex.h>
#include <gsl/gsl_fft_real.h>
#endif
#ifdef KOR_HAVE_POCKETFFT
#if __has_include(<pocketfft_hdronly.h>)
#include <pocketfft_hdronly.h>
#else
#include <pocketfft.hpp>
#endif
#endif

namespace kor::bench {

enum class Data { complex, real };

// m sequences of length n, one after the other.
struct Shape {
    int m, n;
    std::size_t size() const { return static_cast<std::size_t>(m) * static_cast<std::size_t>(n); }
};

using Doubles = std::vector<double>;

inline Doubles noise(std::size_t size, unsigned seed)
{
    std::mt19937_64 random{seed};
    std::uniform_real_distribution<double> uniform{-1.0, 1.0};
    Doubles x(size);
    for (double &value : x) value = uniform(random);
    return x;
}

class Contestant {
  public:
    virtual ~Contestant() = default;
    virtual void run() = 0;
    // Element k of the first sequence, times this factor, in our scaling; after one run.
    virtual std::complex<double> result(int k) const = 0;
};

inline std::complex<double> unpacked(const double *x, int n, int k)
{
    if (k == 0 || 2 * k == n) return x[k];
    return 2 * k < n ? std::complex<double>{x[k], x[n - k]} : std::complex<double>{x[n - k], -x[k]};
}

// Split arrays; the imaginary part is empty for real data.
class SplitContestant : public Contestant {
  public:
    SplitContestant(Data data, Shape shape)
        : shape_{shape}, re_{noise(shape.size(), 1)}, im_{data == Data::complex ? noise(shape.size(), 2) : Doubles{}}
    {
    }
    std::complex<double> result(int k) const override
    {
        const std::complex<double> value =
            im_.empty() ? unpacked(re_.data(), shape_.n, k) : std::complex<double>{re_[k], im_[k]};
        return factor_ * value;
    }

  protected:
    // Transforms that do not keep the norm, such as packed ones taken again and again for real, would end among numbers so
    // small or so large that they take longer.
    void count_run()
    {
        if (++runs_ % 256 != 0) return;
        std::ranges::copy(first_re_, re_.begin());
        std::ranges::copy(first_im_, im_.begin());
    }

    Shape shape_;
    Doubles re_, im_;
    const Doubles first_re_ = re_, first_im_ = im_;
    int runs_ = 0;
    double factor_ = 1.0;
    KorError fail_{};
};

class Multiple : public SplitContestant {
  public:
    Multiple(Data data, Shape shape) : SplitContestant{data, shape}, trig_(2 * static_cast<std::size_t>(shape.n))
    {
        c06gzc(shape.n, trig_.data(), &fail_);
    }
    void run() override
    {
        count_run();
        if (im_.empty())
            c06fpc(shape_.m, shape_.n, re_.data(), trig_.data(), &fail_);
        else
            c06frc(shape_.m, shape_.n, re_.data(), im_.data(), trig_.data(), &fail_);
    }

  private:
    Doubles trig_;
};

class InPlace : public SplitContestant {
  public:
    using SplitContestant::SplitContestant;
    void run() override
    {
        count_run();
        if (im_.empty())
            c06eac(shape_.n, re_.data(), &fail_);
        else
            c06ecc(shape_.n, re_.data(), im_.data(), &fail_);
    }
    static bool suits(int n)
    {
        int factors = 0;
        for (int p = 2; p <= 19; ++p)
            for (; n % p == 0; n /= p) ++factors;
        return n == 1 && factors <= 20;
    }
};

#ifdef KOR_HAVE_FFTW
class Fftw : public SplitContestant {
  public:
    Fftw(Data data, Shape shape, unsigned effort) : SplitContestant{data, shape}
    {
        factor_ = 1.0 / std::sqrt(shape.n);
        fftw_iodim each{shape.n, 1, 1}, all{shape.m, shape.n, shape.n};
        const fftw_r2r_kind kind = FFTW_R2HC;
        plan_ = im_.empty() ? fftw_plan_guru_r2r(1, &each, 1, &all, re_.data(), re_.data(), &kind, effort)
                            : fftw_plan_guru_split_dft(1, &each, 1, &all, re_.data(), im_.data(), re_.data(),
                                                       im_.data(), effort);
        // Planning overwrites the data, and the plan holds for these places.
        std::ranges::copy(first_re_, re_.begin());
        std::ranges::copy(first_im_, im_.begin());
    }
    Fftw(const Fftw &) = delete;
    ~Fftw() override { fftw_destroy_plan(plan_); }
    void run() override
    {
        count_run();
        if (im_.empty())
            fftw_execute_r2r(plan_, re_.data(), re_.data());
        else
            fftw_execute_split_dft(plan_, re_.data(), im_.data(), re_.data(), im_.data());
    }

  private:
    fftw_plan plan_;
};
#endif

// Pairs of numbers; real data as they are.
class InterleavedContestant : public Contestant {
  public:
    InterleavedContestant(Data data, Shape shape) : shape_{shape}, real_{data == Data::real}
    {
        const Doubles re = noise(shape.size(), 1), im = noise(shape.size(), 2);
        if (real_)
            x_ = re;
        else
            for (std::size_t i = 0; i < shape.size(); ++i) x_.insert(x_.end(), {re[i], im[i]});
    }

  protected:
    Shape shape_;
    bool real_;
    Doubles x_;
};

#ifdef KOR_HAVE_POCKETFFT
class Pocketfft : public InterleavedContestant {
  public:
    Pocketfft(Data data, Shape shape) : InterleavedContestant{data, shape}
    {
        if (real_) half_.resize(static_cast<std::size_t>(shape.m) * static_cast<std::size_t>(shape.n / 2 + 1));
    }
    void run() override
    {
        const double scale = 1.0 / std::sqrt(shape_.n);
        const auto n = static_cast<std::size_t>(shape_.n), m = static_cast<std::size_t>(shape_.m);
        const std::ptrdiff_t one = sizeof(double), row = shape_.n * one, half = shape_.n / 2 + 1;
        if (real_)
            pocketfft::r2c<double>({m, n}, {row, one}, {2 * half * one, 2 * one}, 1, true, x_.data(), half_.data(),
                                   scale);
        else {
            auto *const z = reinterpret_cast<std::complex<double> *>(x_.data());
            pocketfft::c2c<double>({m, n}, {2 * row, 2 * one}, {2 * row, 2 * one}, {1}, true, z, z, scale);
        }
    }
    std::complex<double> result(int k) const override
    {
        if (!real_) return {x_[2 * k], x_[2 * k + 1]};
        return 2 * k <= shape_.n ? half_[k] : std::conj(half_[shape_.n - k]);
    }

  private:
    std::vector<std::complex<double>> half_;
};
#endif

#ifdef KOR_HAVE_GSL
class Gsl : public InterleavedContestant {
  public:
    Gsl(Data data, Shape shape) : InterleavedContestant{data, shape}
    {
        const auto n = static_cast<std::size_t>(shape.n);
        if (real_) {
            real_table_.reset(gsl_fft_real_wavetable_alloc(n));
            real_work_.reset(gsl_fft_real_workspace_alloc(n));
        } else {
            complex_table_.reset(gsl_fft_complex_wavetable_alloc(n));
            complex_work_.reset(gsl_fft_complex_workspace_alloc(n));
        }
    }
    void run() override
    {
        const auto n = static_cast<std::size_t>(shape_.n);
        for (std::size_t i = 0; i < static_cast<std::size_t>(shape_.m); ++i)
            if (real_)
                gsl_fft_real_transform(x_.data() + i * n, 1, n, real_table_.get(), real_work_.get());
            else
                gsl_fft_complex_forward(x_.data() + 2 * i * n, 1, n, complex_table_.get(), complex_work_.get());
    }
    // A prime p costs p^2.
    static bool bearable(int n)
    {
        for (int p = 2; p < 2000; ++p)
            while (n % p == 0) n /= p;
        return n == 1;
    }
    std::complex<double> result(int k) const override
    {
        const double factor = 1.0 / std::sqrt(shape_.n);
        if (!real_) return factor * std::complex<double>{x_[2 * k], x_[2 * k + 1]};
        const int j = 2 * k <= shape_.n ? k : shape_.n - k;
        const double re = j == 0 ? x_[0] : x_[2 * j - 1], im = j == 0 || 2 * j == shape_.n ? 0.0 : x_[2 * j];
        return factor * std::complex<double>{re, j == k ? im : -im};
    }

  private:
    template <auto free>
    struct Free {
        void operator()(auto *p) const { free(p); }
    };
    std::unique_ptr<gsl_fft_real_wavetable, Free<gsl_fft_real_wavetable_free>> real_table_;
    std::unique_ptr<gsl_fft_real_workspace, Free<gsl_fft_real_workspace_free>> real_work_;
    std::unique_ptr<gsl_fft_complex_wavetable, Free<gsl_fft_complex_wavetable_free>> complex_table_;
    std::unique_ptr<gsl_fft_complex_workspace, Free<gsl_fft_complex_workspace_free>> complex_work_;
};
#endif

// The first sequence's transform in extended precision.
inline std::vector<std::complex<long double>> exact([[maybe_unused]] Data data, [[maybe_unused]] Shape shape)
{
    std::vector<std::complex<long double>> z;
#ifdef KOR_HAVE_FFTWL
    const Doubles re = noise(shape.size(), 1), im = noise(shape.size(), 2);
    for (std::size_t i = 0; i < static_cast<std::size_t>(shape.n); ++i)
        z.emplace_back(re[i], data == Data::complex ? im[i] : 0.0);
    auto *const p = reinterpret_cast<fftwl_complex *>(z.data());
    const fftwl_plan plan = fftwl_plan_dft_1d(shape.n, p, p, FFTW_FORWARD, FFTW_ESTIMATE);
    fftwl_execute(plan);
    fftwl_destroy_plan(plan);
    for (auto &value : z) value /= std::sqrt(static_cast<long double>(shape.n));
#endif
    return z;
}

// Relative error in the L2 norm, in units of 2^-52 log2 n.
inline double error_of(const Contestant &contestant, const std::vector<std::complex<long double>> &wanted)
{
    if (wanted.empty()) return -1.0;
    long double error = 0.0L, norm = 0.0L;
    for (std::size_t k = 0; k < wanted.size(); ++k) {
        const std::complex<double> value = contestant.result(static_cast<int>(k));
        error += std::norm(std::complex<long double>{value.real(), value.imag()} - wanted[k]);
        norm += std::norm(wanted[k]);
    }
    return static_cast<double>(std::sqrt(error / norm)) / 0x1p-52 / std::log2(static_cast<double>(wanted.size()));
}

// Registers contestants for one shape; times are for one element.
class Race {
  public:
    Race(Data data, Shape shape) : data_{data}, shape_{shape}, wanted_{exact(data, shape)}
    {
        work_ = std::string(data == Data::complex ? "complex " : "real ") + std::to_string(shape.n);
    }
    template <class Entrant, class... Arguments>
    Race &enter(const char *name, Arguments... arguments)
    {
        const auto contestant = std::make_shared<Entrant>(data_, shape_, arguments...);
        contestant->run();
        const double error = error_of(*contestant, wanted_);
        add(work_ + "/" + name, [contestant] { contestant->run(); },
            {.error = error, .items = static_cast<double>(shape_.size())});
        return *this;
    }
    Race &enter_peers()
    {
#ifdef KOR_HAVE_POCKETFFT
        enter<Pocketfft>("pocketfft");
#endif
#ifdef KOR_HAVE_GSL
        if (Gsl::bearable(shape_.n)) enter<Gsl>("GSL");
#endif
        return *this;
    }
    Race &enter_fftw()
    {
#ifdef KOR_HAVE_FFTW
        fftw_set_timelimit(4.0); // seconds a plan
        enter<Fftw>("FFTW estimated", FFTW_ESTIMATE);
        enter<Fftw>("FFTW measured", FFTW_MEASURE);
#endif
        return *this;
    }

  private:
    Data data_;
    Shape shape_;
    std::vector<std::complex<long double>> wanted_;
    std::string work_;
};

inline std::vector<int> lengths(int largest)
{
    std::vector<int> all;
    for (int n = 16; n <= 4194304; n *= 2) all.push_back(n);
    all.insert(all.end(), {12, 60, 100, 1000, 5040, 44100, 59049, 1000000, 17, 101, 1009, 10007, 65537, 1000003});
    std::erase_if(all, [=](int n) { return n > largest; });
    return all;
}

} // namespace kor::bench
