// g01dhc: ranks and scores of a sample.
#include <kor/g01.h>
#include <kor/g05.h>

#include <algorithm>
#include <cmath>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "sort/ranking.hpp"
#include "special/evaluate.hpp"
#include "stats/normal_law.hpp"
#include "stats/normal_scores.hpp"

namespace {

// NaNs are equal to each other and greater than all else.
Integer ascending(const void *a, const void *b)
{
    const double x = *static_cast<const double *>(a), y = *static_cast<const double *>(b);
    if (std::isnan(x) || std::isnan(y))
        return static_cast<Integer>(std::isnan(x)) - static_cast<Integer>(std::isnan(y));
    return (x > y) - (x < y);
}

// Scores of all ranks in order; set(k, score), k from 0.
template <class Set>
void for_each_score(Integer scores, Integer n, const Set &set)
{
    // The normal families are odd about the middle rank.
    const auto antisymmetric = [&](const auto &score) {
        for (Integer k = 0; k < n / 2; ++k) {
            const double value = score(k + 1.0);
            set(k, value);
            set(n - 1 - k, -value);
        }
        if (n % 2 == 1) set(n / 2, 0.0);
    };
    const auto quantile = [&](double shift, double excess) {
        antisymmetric([&](double i) { return kor::stats::normal_quantile((i - shift) / (n + excess)); });
    };
    switch (scores) {
    case Kor_RankScores:
        for (Integer k = 0; k < n; ++k) set(k, k + 1.0);
        break;
    case Kor_NormalScores:
        antisymmetric([&](double i) { return kor::stats::expected_normal_score(static_cast<Integer>(i), n).value; });
        break;
    case Kor_BlomScores:
        quantile(0.375, 0.25);
        break;
    case Kor_TukeyScores:
        quantile(1.0 / 3.0, 1.0 / 3.0);
        break;
    case Kor_WaerdenScores:
        quantile(0.0, 1.0);
        break;
    default: { // Savage: the expected order statistics of the exponential law
        kor::special::DoubleDouble sum{0.0};
        for (Integer k = 0; k < n; ++k) {
            sum = sum + kor::special::two_quotient(1.0, n - k);
            set(k, sum.rounded());
        }
    }
    }
}

// Gives all elements of a group what the rule makes of their scores.
void share(Integer ties, double r[], const Integer *group, Integer size)
{
    double shared = r[ties == Kor_LowestTies ? group[0] : group[size - 1]];
    if (ties == Kor_AverageTies) {
        kor::special::DoubleDouble sum{0.0};
        for (Integer k = 0; k < size; ++k) sum = sum + r[group[k]];
        shared = (sum / size).rounded();
    }
    for (Integer k = 0; k < size; ++k) r[group[k]] = shared;
}

} // namespace

void g01dhc(Integer scores, Integer ties, Integer n, const double x[], double r[], KorError *fail)
{
    const kor::Report report{"g01dhc", fail};
    if (scores < Kor_RankScores || scores > Kor_SavageScores) return report.error<NE_BAD_PARAM>("scores");
    if (ties < Kor_AverageTies || ties > Kor_IgnoreTies) return report.error<NE_BAD_PARAM>("ties");
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    const kor::Workspace<Integer> order{kor::Count{n}};
    if (!order) return report.error<NE_ALLOC_FAIL>();
    kor::sort::order_elements(kor::sort::Elements{x, sizeof(double)}, n, ascending, Kor_Ascending, order.data());

    const auto for_each_tie = [&](const auto &treat) {
        for (Integer first = 0, next; first < n; first = next) {
            next = first + 1;
            while (next < n && ascending(&x[order[next]], &x[order[first]]) == 0) ++next;
            if (next - first > 1) treat(&order[first], next - first);
        }
    };
    if (ties == Kor_RandomTies)
        for_each_tie([](Integer *group, Integer size) {
            KorError unused = {};
            g05ehc(group, size, &unused);
        });
    for_each_score(scores, n, [&](Integer k, double score) { r[order[k]] = score; });
    if (ties == Kor_AverageTies || ties == Kor_LowestTies || ties == Kor_HighestTies)
        for_each_tie([&](Integer *group, Integer size) { share(ties, r, group, size); });
    report.success();
}
