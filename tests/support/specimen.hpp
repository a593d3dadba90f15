// A specimen is one valid call of a routine, for the sweeps that treat all routines alike.
//
//     KOR_SPECIMEN(c05adc)
//     {
//         double x = 99.0;                                   // outputs start with values that the call must change
//         call([&](KorError *fail) { c05adc(0.0, 2.0, &x, [](double t) { return t * t - 2.0; }, 1e-10, 0.0, fail); });
//         outputs(x);
//     }
//
// Everything that the call may change is named to outputs(); arrays by outputs(pointer, count). Calls that prepare the one
// under test stand before call(...), with records of their own; what the call hands out is freed after outputs().
#pragma once

#include <cstddef>
#include <functional>
#include <type_traits>
#include <vector>

#include <kor.h>

namespace kor::testing {

// How a specimen is run: what happens inside call(...) is up to the sweep.
class Specimen {
  public:
    using Action = std::function<void(KorError *)>;
    // What a sweep puts around the call; null skips it, which leaves the outputs as they were before.
    using Around = std::function<void(const Action &)>;

    explicit Specimen(Around around) : around_{std::move(around)} {}
    virtual ~Specimen() = default;
    virtual void run() = 0;
    const std::vector<unsigned char> &bytes() const { return bytes_; }

  protected:
    void call(const Action &action)
    {
        if (around_) around_(action);
    }
    template <class T>
    void outputs(const T *values, std::size_t count)
    {
        static_assert(std::is_trivially_copyable_v<T>);
        const auto *first = reinterpret_cast<const unsigned char *>(values);
        bytes_.insert(bytes_.end(), first, first + count * sizeof(T));
    }
    template <class... T>
    requires(... && !std::is_pointer_v<T>) void outputs(const T &...values) { (outputs(&values, 1), ...); }

  private:
    Around around_;
    std::vector<unsigned char> bytes_;
};

struct Registration {
    const char *routine;
    bool has_record;
    Specimen *(*make)(Specimen::Around);
};

std::vector<Registration> &registry();

struct Register {
    Register(const char *routine, bool has_record, Specimen *(*make)(Specimen::Around))
    {
        registry().push_back({routine, has_record, make});
    }
};

// Runs a specimen and returns its outputs.
std::vector<unsigned char> run_specimen(const Registration &, Specimen::Around);

#define KOR_SPECIMEN_AS(name, has_record)                                                                              \
    namespace {                                                                                                        \
    struct Specimen_##name final : ::kor::testing::Specimen {                                                          \
        using Specimen::Specimen;                                                                                      \
        void run() override;                                                                                           \
    };                                                                                                                 \
    const ::kor::testing::Register register_##name{                                                                    \
        #name, has_record, [](::kor::testing::Specimen::Around around) -> ::kor::testing::Specimen * {                 \
            return new Specimen_##name{std::move(around)};                                                             \
        }};                                                                                                            \
    }                                                                                                                  \
    void Specimen_##name::run()

#define KOR_SPECIMEN(name) KOR_SPECIMEN_AS(name, true)
// For the few routines that take no error record.
#define KOR_SPECIMEN_WITHOUT_RECORD(name) KOR_SPECIMEN_AS(name, false)

} // namespace kor::testing
