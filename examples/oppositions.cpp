// When does Mars stand opposite the Sun? Two functions in C++, one inside the other: the longitudes of the planets come from
// Kepler's equation, a zero each, and an opposition is a zero of their difference. Lambdas carry their data through the
// pointer that c05sdc passes on, and the routine may be called from a function that it calls.
#include <kor/c05.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kEpoch = 2451545.0; // Julian date of J2000
constexpr double kCentury = 36525.0; // days

// All that it takes to hand a lambda, or any other function object, to a routine with a comm pointer.
template <class Function>
double zero(double a, double b, double xtol, Function f)
{
    KorError fail{};
    double x = 0.0;
    c05sdc(
        a, b, &x, [](double t, void *self) { return (*static_cast<Function *>(self))(t); }, xtol, 0.0, &f, &fail);
    if (fail.code != NE_NOERROR) throw std::runtime_error(fail.message);
    return x;
}

// Semi-major axis, eccentricity, inclination, mean longitude, longitudes of perihelion and node; and their rates.
struct Planet {
    std::array<double, 6> at_epoch, rate;
};

std::map<std::string, Planet> read_planets(const char *path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error(std::string(path) + " is not here: please run this program in the folder examples");
    std::map<std::string, Planet> planets;
    for (std::string line, name; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        Planet planet;
        std::istringstream values(line);
        values >> name;
        for (double &element : planet.at_epoch) values >> element;
        std::getline(file, line);
        std::istringstream rates(line);
        for (double &rate : planet.rate) rates >> rate;
        planets[name] = planet;
    }
    return planets;
}

// Heliocentric longitude in the ecliptic, in degrees.
double longitude(const Planet &planet, double date)
{
    std::array<double, 6> now;
    for (std::size_t i = 0; i < now.size(); ++i)
        now[i] = planet.at_epoch[i] + planet.rate[i] * (date - kEpoch) / kCentury;
    const auto [a, e, inclination, mean, perihelion, node] = now;

    const double M = std::remainder(mean - perihelion, 360.0) * kPi / 180.0;
    const double eccentricity = e; // a structured binding cannot be captured in C++17
    const double E = zero(M - e, M + e, 1e-14, [=](double x) { return x - eccentricity * std::sin(x) - M; });

    const double true_anomaly = 2.0 * std::atan(std::sqrt((1.0 + e) / (1.0 - e)) * std::tan(E / 2.0));
    const double from_node = true_anomaly + (perihelion - node) * kPi / 180.0;
    const double tilt = std::cos(inclination * kPi / 180.0);
    return node + std::atan2(std::sin(from_node) * tilt, std::cos(from_node)) * 180.0 / kPi;
}

// Day of the Gregorian calendar (Fliegel and Van Flandern, 1968).
std::string calendar(double date)
{
    long l = static_cast<long>(std::floor(date + 0.5)) + 68569;
    const long n = 4 * l / 146097;
    l -= (146097 * n + 3) / 4;
    const long i = 4000 * (l + 1) / 1461001;
    l = l - 1461 * i / 4 + 31;
    const long j = 80 * l / 2447;
    const long day = l - 2447 * j / 80;
    const long month = j + 2 - 12 * (j / 11);
    const long year = 100 * (n - 49) + i + j / 11;
    char text[64];
    std::snprintf(text, sizeof text, "%04ld-%02ld-%02ld", year, month, day);
    return text;
}

} // namespace

int main()
try {
    const auto planets = read_planets("data/planets.txt");
    const Planet &earth = planets.at("Earth"), &mars = planets.at("Mars");
    const auto ahead = [&](double date) {
        return std::remainder(longitude(earth, date) - longitude(mars, date), 360.0);
    };

    std::puts("Oppositions of Mars, 2000 to 2020");
    std::puts("date           Julian date   difference of longitudes (degrees)");
    constexpr double step = 20.0; // days; Earth gains at most 15 degrees on Mars in that time
    for (double date = kEpoch; date < kEpoch + 7650.0; date += step) {
        const double before = ahead(date), after = ahead(date + step);
        if (!(before < 0.0 && after >= 0.0 && after - before < 180.0)) continue;
        const double opposition = zero(date, date + step, 1e-9, ahead);
        std::printf("%s %15.2f %20.8f\n", calendar(opposition).c_str(), opposition, std::fabs(ahead(opposition)));
    }
} catch (const std::exception &error) {
    std::puts(error.what());
    return 1;
}
