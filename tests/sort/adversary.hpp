// An opponent of quicksort.
#pragma once

#include <vector>

#include <kor.h>

namespace kor::testing {

// M. D. McIlroy, A killer adversary for quicksort, Softw. Pract. Exper. 29 (1999) 341-344: keys are settled only when a
// comparison forces it, always to the pivot's disadvantage.
struct Adversary {
    std::vector<int> value;
    int settled = 0, candidate = 0;
    long comparisons = 0;
    int gas;

    static Adversary *&playing()
    {
        static thread_local Adversary *adversary = nullptr;
        return adversary;
    }
    explicit Adversary(int n) : value(static_cast<std::size_t>(n), n - 1), gas{n - 1} { playing() = this; }
    static Integer compare(const void *a, const void *b)
    {
        Adversary &self = *playing();
        ++self.comparisons;
        const int x = *static_cast<const int *>(a), y = *static_cast<const int *>(b);
        int &u = self.value[static_cast<std::size_t>(x)], &v = self.value[static_cast<std::size_t>(y)];
        if (u == self.gas && v == self.gas) (x == self.candidate ? u : v) = self.settled++;
        if (u == self.gas)
            self.candidate = x;
        else if (v == self.gas)
            self.candidate = y;
        return u - v;
    }
};

} // namespace kor::testing
