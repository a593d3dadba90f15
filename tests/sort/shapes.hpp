// Shapes of data that sorts are known to stumble over, as integer keys.
#pragma once

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace kor::testing {

struct Shape {
    const char *name;
    // Key of position i of n; `random` is drawn from by the shapes of chance.
    std::function<int(int i, int n, std::mt19937 &random)> key;
};

inline const std::vector<Shape> &shapes()
{
    static const std::vector<Shape> all = {
        {"random", [](int, int, std::mt19937 &random) { return static_cast<int>(random() >> 8); }},
        {"random with many ties",
         [](int, int n, std::mt19937 &random) { return static_cast<int>(random() % (n / 2 + 1)); }},
        {"few unique", [](int, int, std::mt19937 &random) { return static_cast<int>(random() % 4); }},
        {"all equal", [](int, int, std::mt19937 &) { return 7; }},
        {"sorted", [](int i, int, std::mt19937 &) { return i; }},
        {"sorted in pairs", [](int i, int, std::mt19937 &) { return i / 2; }},
        {"reversed", [](int i, int n, std::mt19937 &) { return n - i; }},
        {"reversed in pairs", [](int i, int n, std::mt19937 &) { return (n - i) / 2; }},
        {"organ pipe", [](int i, int n, std::mt19937 &) { return std::min(i, n - 1 - i); }},
        {"valley", [](int i, int n, std::mt19937 &) { return std::max(i, n - 1 - i); }},
        {"sorted halves", [](int i, int n, std::mt19937 &) { return i % (n / 2 + 1); }},
        {"sawtooth", [](int i, int, std::mt19937 &) { return i % 11; }},
        {"smallest last", [](int i, int n, std::mt19937 &) { return i == n - 1 ? -1 : i; }},
        {"greatest first", [](int i, int n, std::mt19937 &) { return i == 0 ? n : i; }},
        {"smallest in the middle", [](int i, int n, std::mt19937 &) { return i == n / 2 ? -1 : i; }},
        {"sorted but for the last few",
         [](int i, int n, std::mt19937 &random) { return i < n - 9 ? i : static_cast<int>(random() % n); }},
        {"nearly sorted", [](int i, int, std::mt19937 &random) { return i + static_cast<int>(random() % 5); }},
        {"alternating", [](int i, int n, std::mt19937 &) { return i % 2 == 0 ? i : n - i; }},
        {"one stranger", [](int i, int n, std::mt19937 &) { return i == n / 3 ? 1 : 0; }},
    };
    return all;
}

inline std::vector<int> keys_of(const Shape &shape, int n, unsigned seed = 1)
{
    std::mt19937 random{seed + static_cast<unsigned>(n)};
    std::vector<int> keys(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) keys[static_cast<std::size_t>(i)] = shape.key(i, n, random);
    return keys;
}

// All small sizes, and the neighbourhood of the sizes at which algorithms change hands.
inline std::vector<int> sizes_to_test(int all_up_to, std::initializer_list<int> beyond)
{
    std::vector<int> sizes;
    for (int n = 0; n <= all_up_to; ++n) sizes.push_back(n);
    for (const int n : beyond) sizes.insert(sizes.end(), {n - 1, n, n + 1});
    return sizes;
}

} // namespace kor::testing
