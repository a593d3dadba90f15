// A program of a user, in C++17: a lambda that carries its data, and an exception on its way through the library.
#include <kor/c05.h>

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace {

template <class Function>
double zero(double a, double b, Function function)
{
    KorError fail{};
    double x = 0.0;
    c05sdc(
        a, b, &x, [](double t, void *self) { return (*static_cast<Function *>(self))(t); }, 1e-14, 0.0, &function,
        &fail);
    return fail.code == NE_NOERROR ? x : NAN;
}

} // namespace

int main()
{
    const double number = 3.0;
    if (!(std::fabs(zero(0.0, 2.0, [&](double x) { return x * x - number; }) - std::sqrt(number)) <= 1e-14)) return 1;

    try {
        zero(0.0, 2.0, [](double) -> double { throw std::domain_error("no value"); });
        return 2;
    } catch (const std::domain_error &) {
    }
    std::puts("C++17: ok");
}
