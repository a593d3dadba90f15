// Sets of points in the plane that are hard to triangulate.
#pragma once

#include <cmath>
#include <numbers>
#include <random>
#include <string>
#include <vector>

namespace kor::testing {

struct PointSet {
    std::string name;
    std::vector<double> x, y;

    void add(double px, double py)
    {
        x.push_back(px);
        y.push_back(py);
    }
    int size() const { return static_cast<int>(x.size()); }
};

inline std::vector<PointSet> point_sets()
{
    std::mt19937_64 random{17};
    std::uniform_real_distribution<double> uniform;
    std::normal_distribution<double> normal;
    std::vector<PointSet> sets;
    const auto make = [&sets](const char *name) -> PointSet & { return sets.emplace_back(PointSet{name, {}, {}}); };

    PointSet &square = make("uniform");
    for (int i = 0; i < 300; ++i) square.add(uniform(random), uniform(random));
    PointSet &cluster = make("clusters of different scale");
    for (int i = 0; i < 200; ++i) {
        const double scale = std::pow(10.0, -(i % 5) * 3);
        cluster.add(scale * normal(random), scale * normal(random));
    }
    PointSet &grid = make("integer grid");
    for (int i = 0; i < 15; ++i)
        for (int j = 0; j < 15; ++j) grid.add(i, j);
    PointSet &tenths = make("grid of tenths, far from the origin");
    for (int i = 0; i < 15; ++i)
        for (int j = 0; j < 15; ++j) tenths.add(1000.0 + 0.1 * i, -0.1 * j);
    PointSet &circle = make("circle and its centre");
    for (int i = 0; i < 100; ++i)
        circle.add(std::cos(2.0 * std::numbers::pi * i / 100), std::sin(2.0 * std::numbers::pi * i / 100));
    circle.add(0.0, 0.0);
    PointSet &line = make("line and one point off it");
    for (int i = 0; i < 60; ++i) line.add(0.25 * i, 0.75 * i);
    line.add(1.0, 2.5);
    PointSet &cross = make("two collinear runs");
    for (int i = -30; i <= 30; ++i) cross.add(i / 7.0, i / 7.0);
    for (int i = -30; i <= 30; ++i)
        if (i != 0) cross.add(i / 7.0, -i / 7.0);
    PointSet &flat = make("axes of different scale");
    for (int i = 0; i < 200; ++i) flat.add(1e8 * uniform(random), 1e-8 * uniform(random));
    PointSet &tiny = make("tiny"), &huge = make("huge");
    for (int i = 0; i < 100; ++i) {
        const double x = uniform(random), y = uniform(random);
        tiny.add(1e-160 * x, 1e-160 * y);
        huge.add(1e150 * x, 1e150 * y);
    }
    PointSet &triangle = make("one triangle");
    triangle.add(0.0, 0.0);
    triangle.add(1.0, 0.0);
    triangle.add(0.0, 1.0);
    return sets;
}

} // namespace kor::testing
