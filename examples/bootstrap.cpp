// How far may a mean, a median, a trimmed mean of a hundred measurements be off? A bootstrap on several threads.
//
// Michelson's measurements of the speed of light are drawn again and again, with replacement; the spread of a statistic over
// these samples estimates its standard error. Each thread has a stream of its own: without seeding all threads would draw
// the same numbers, and seeds are drawn, because seeds that follow one another make streams that are related. The threads are
// independent replications, so that their spread tells the error of the Monte Carlo estimate itself: the error bar of the
// error bar.
//
// Twenty million numbers are used here, far from the 4e8 that one should not exceed with a generator of period 2^57, and
// means and medians of samples do not see its lattice structure. The results are the same on every machine.
#include <kor/g05.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 8;
constexpr int kResamples = 25000; // on each thread
constexpr Integer kMasterSeed = 1879;

using Sample = std::vector<double>;

Sample read(const char *file)
{
    std::ifstream in{file};
    Sample values;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        for (std::size_t at = 0, used = 0; at < line.size(); at += used) {
            values.push_back(std::stod(line.substr(at), &used));
            while (at + used < line.size() && line[at + used] == ' ') ++used;
        }
    }
    return values;
}

double mean(const Sample &sorted, std::size_t trimmed = 0)
{
    double sum = 0.0;
    for (std::size_t i = trimmed; i < sorted.size() - trimmed; ++i) sum += sorted[i];
    return sum / static_cast<double>(sorted.size() - 2 * trimmed);
}

constexpr int kStatistics = 3;
const char *const kNames[kStatistics] = {"mean", "mean without a tenth at either end", "median"};
std::array<double, kStatistics> statistics(Sample &sample)
{
    std::sort(sample.begin(), sample.end());
    const std::size_t n = sample.size();
    return {mean(sample), mean(sample, n / 10), 0.5 * (sample[(n - 1) / 2] + sample[n / 2])};
}

// The standard deviations of the statistics over the samples of one thread.
std::array<double, kStatistics> standard_errors(const Sample &values, Integer seed)
{
    g05cbc(seed);
    const auto n = static_cast<Integer>(values.size());
    Sample sample(values.size()), position(values.size());
    std::array<double, kStatistics> sum{}, squares{}, centre{};
    Sample all = values;
    centre = statistics(all);
    for (int resample = 0; resample < kResamples; ++resample) {
        g05fac(0.0, static_cast<double>(n), n, position.data());
        for (Integer i = 0; i < n; ++i) sample[i] = values[std::min(static_cast<Integer>(position[i]), n - 1)];
        const auto found = statistics(sample);
        for (int s = 0; s < kStatistics; ++s) {
            sum[s] += found[s] - centre[s];
            squares[s] += (found[s] - centre[s]) * (found[s] - centre[s]);
        }
    }
    std::array<double, kStatistics> errors{};
    for (int s = 0; s < kStatistics; ++s)
        errors[s] = std::sqrt((squares[s] - sum[s] * sum[s] / kResamples) / (kResamples - 1));
    return errors;
}

} // namespace

int main()
{
    Sample values = read("data/light.txt");
    const auto found = statistics(values);
    std::printf("%zu measurements of the speed of light, km/s less 299,000\n\n", values.size());

    std::array<std::array<double, kStatistics>, kThreads> errors;
    std::vector<std::thread> threads;
    g05cbc(kMasterSeed);
    for (int t = 0; t < kThreads; ++t) {
        const Integer seed = g05dyc(0, 2147483647);
        threads.emplace_back([&, t, seed] { errors[t] = standard_errors(values, seed); });
    }
    for (std::thread &thread : threads) thread.join();

    std::printf("%-36s %9s %20s\n", "", "value", "standard error");
    for (int s = 0; s < kStatistics; ++s) {
        double sum = 0.0, squares = 0.0;
        for (const auto &thread : errors) sum += thread[s];
        const double average = sum / kThreads;
        for (const auto &thread : errors) squares += (thread[s] - average) * (thread[s] - average);
        const double bar = std::sqrt(squares / (kThreads - 1) / kThreads);
        std::printf("%-36s %9.2f %11.3f +- %.3f\n", kNames[s], found[s], average, bar);
    }
    double deviation = 0.0;
    for (const double value : values) deviation += (value - found[0]) * (value - found[0]);
    const auto n = static_cast<double>(values.size());
    std::printf("\nFor the mean there is a formula, and it gives %.3f.\n", std::sqrt(deviation / n / n));
    std::printf("The true value, 734.5, is %.0f standard errors away: Michelson's errors were not random.\n",
                (found[0] - 734.5) / std::sqrt(deviation / n / n));
    return 0;
}
