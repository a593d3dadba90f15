// The table of ratios, and the main program of every benchmark.
#include "support/ratio_table.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <map>
#include <vector>

namespace kor::bench {

namespace {

constexpr double kAbsent = std::numeric_limits<double>::quiet_NaN();
constexpr const char *kReference = "KOR";
constexpr int kFirstColumn = 36;
constexpr int kColumn = 16;

// One implementation's figures for one work.
struct Entry {
    double nanoseconds = kAbsent; // of one item, the least of all repetitions
    double error = kAbsent;
    double calls = kAbsent;
};

struct Program {
    std::string title = "KOR beside its peers";
    std::string error_unit = "error";
    std::vector<std::string> notes;
};

Program &program()
{
    static Program the;
    return the;
}

double counter(const benchmark::UserCounters &counters, const char *name)
{
    const auto found = counters.find(name);
    return found == counters.end() ? kAbsent : static_cast<double>(found->second);
}

std::string text_of(const char *format, double value)
{
    if (std::isnan(value)) return "-";
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string text_of_time(double nanoseconds)
{
    if (std::isnan(nanoseconds)) return "-";
    if (nanoseconds < 1e4) return text_of("%.4g ns", nanoseconds);
    if (nanoseconds < 1e7) return text_of("%.4g us", nanoseconds / 1e3);
    return text_of("%.4g ms", nanoseconds / 1e6);
}

// Collects all runs and prints one table at the end.
class RatioTable final : public benchmark::BenchmarkReporter {
    using Places = std::vector<std::pair<std::int64_t, std::string>>;

  public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs)
            if (run.run_type == Run::RT_Iteration && run.iterations > 0) take(run);
        std::fputc('.', stderr); // a sign of life: the table comes at the end
    }

    void Finalize() override
    {
        std::fputc('\n', stderr);
        std::printf("\n%s\n", program().title.c_str());
        std::printf("least CPU time of all repetitions; in parentheses KOR's time divided by the peer's: below 1 KOR "
                    "is faster\n\n");
        print_times();
        print_figures(program().error_unit, "%.3g", &Entry::error);
        print_figures("calls of the user's function", "%.0f", &Entry::calls);
        for (const std::string &line : program().notes) std::printf("%s\n", line.c_str());
    }

  private:
    void take(const Run &run)
    {
        const std::string &name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        if (slash == std::string::npos) return;
        std::string work = name.substr(0, slash);
        if (!run.run_name.args.empty()) work += " " + run.run_name.args;
        const std::string implementation = name.substr(slash + 1);

        note_place(works_, work, run.family_index);
        if (implementation != kReference) note_place(peers_, implementation, run.family_index);

        Entry &entry = entries_[{work, implementation}];
        const double items = counter(run.counters, "items");
        const double time =
            run.cpu_accumulated_time * 1e9 / static_cast<double>(run.iterations) / (std::isnan(items) ? 1.0 : items);
        entry.nanoseconds = std::fmin(entry.nanoseconds, time);
        entry.error = counter(run.counters, "error");
        entry.calls = counter(run.counters, "calls");
    }

    // Runs end in random order; rows and columns stand in the order of registration.
    static void note_place(Places &places, const std::string &name, std::int64_t place)
    {
        auto found =
            std::find_if(places.begin(), places.end(), [&](const auto &known) { return known.second == name; });
        if (found == places.end()) found = places.insert(places.end(), {place, name});
        found->first = std::min(found->first, place);
        std::sort(places.begin(), places.end());
    }

    Entry entry(const std::string &work, const std::string &implementation) const
    {
        const auto found = entries_.find({work, implementation});
        return found == entries_.end() ? Entry{} : found->second;
    }

    void print_header(const std::string &first) const
    {
        std::printf("%-*s%*s", kFirstColumn, first.c_str(), kColumn, kReference);
        for (const auto &[place, peer] : peers_) std::printf("%*s", kColumn, peer.c_str());
        std::printf("\n");
    }

    void print_times() const
    {
        print_header("time");
        std::vector<double> log_sum(peers_.size());
        std::vector<int> count(peers_.size());
        for (const auto &[place, work] : works_) {
            const double ours = entry(work, kReference).nanoseconds;
            std::printf("%-*s%*s", kFirstColumn, work.c_str(), kColumn, text_of_time(ours).c_str());
            for (std::size_t i = 0; i < peers_.size(); ++i) {
                const double theirs = entry(work, peers_[i].second).nanoseconds;
                const double ratio = ours / theirs;
                std::string cell = text_of_time(theirs);
                if (!std::isnan(ratio)) {
                    cell += " (" + text_of("%.2f", ratio) + ")";
                    log_sum[i] += std::log(ratio);
                    ++count[i];
                }
                std::printf("%*s", kColumn, cell.c_str());
            }
            std::printf("\n");
        }
        std::printf("%-*s", kFirstColumn + kColumn, "geometric mean of the ratios");
        for (std::size_t i = 0; i < peers_.size(); ++i)
            std::printf("%*s", kColumn,
                        text_of("(%.2f)", count[i] > 0 ? std::exp(log_sum[i] / count[i]) : kAbsent).c_str());
        std::printf("\n\n");
    }

    // Rows without any such figure are left out, and so is a table without rows.
    void print_figures(const std::string &what, const char *format, double Entry::*figure) const
    {
        bool headed = false;
        for (const auto &[place, work] : works_) {
            std::vector<double> values{entry(work, kReference).*figure};
            for (const auto &[place, peer] : peers_) values.push_back(entry(work, peer).*figure);
            if (std::all_of(values.begin(), values.end(), [](double v) { return std::isnan(v); })) continue;
            if (!std::exchange(headed, true)) print_header(what);
            std::printf("%-*s", kFirstColumn, work.c_str());
            for (const double value : values) std::printf("%*s", kColumn, text_of(format, value).c_str());
            std::printf("\n");
        }
        if (headed) std::printf("\n");
    }

    Places works_;
    Places peers_;
    std::map<std::pair<std::string, std::string>, Entry> entries_;
};

void set_counters(benchmark::State &state, const Figures &figures)
{
    if (figures.error >= 0.0) state.counters["error"] = figures.error;
    if (figures.calls >= 0.0) state.counters["calls"] = figures.calls;
    state.counters["items"] = figures.items;
}

} // namespace

Heading::Heading(const char *title, const char *error_unit)
{
    program().title = title;
    program().error_unit = error_unit;
}

void note(std::string line) { program().notes.push_back(std::move(line)); }

void add(const std::string &name, std::function<void()> once, Figures figures)
{
    benchmark::RegisterBenchmark(name.c_str(), [once = std::move(once), figures](benchmark::State &state) {
        for (auto _ : state) once();
        set_counters(state, figures);
    });
}

void add_with_setup(const std::string &name, std::function<void()> setup, std::function<void()> once, Figures figures)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [setup = std::move(setup), once = std::move(once), figures](benchmark::State &state) {
                                     for (auto _ : state) {
                                         state.PauseTiming();
                                         setup();
                                         state.ResumeTiming();
                                         once();
                                     }
                                     set_counters(state, figures);
                                 });
}

} // namespace kor::bench

int main(int argc, char **argv)
{
    // Defaults first, so that flags given by hand win.
    std::vector<char *> arguments{argv[0]};
    std::string defaults[] = {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
                              "--benchmark_min_time=0.01"};
    for (std::string &flag : defaults) arguments.push_back(flag.data());
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);

    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;
    kor::bench::RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return 0;
}
