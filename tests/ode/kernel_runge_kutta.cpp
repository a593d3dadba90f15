// The coefficients of the Runge-Kutta pairs fulfil the conditions of their orders, all of them, and not those of the next.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "ode/runge_kutta_tables.hpp"

namespace {

using namespace kor::ode;

// The rooted trees to order 8, one condition each. Children are indices of smaller trees.
struct Tree {
    int order;
    double gamma;
    std::vector<int> children;
};

void grow(std::vector<Tree> &trees, int order, int rest, int largest, std::vector<int> &children)
{
    if (rest == 0) {
        double gamma = order;
        for (const int child : children) gamma *= trees[child].gamma;
        trees.push_back({order, gamma, children});
        return;
    }
    for (int i = largest; i >= 0; --i)
        if (trees[i].order <= rest) {
            children.push_back(i);
            grow(trees, order, rest - trees[i].order, i, children);
            children.pop_back();
        }
}

const std::vector<Tree> &rooted_trees()
{
    static const std::vector<Tree> trees = [] {
        std::vector<Tree> made;
        for (int order = 1; order <= 9; ++order) {
            std::vector<int> children;
            grow(made, order, order - 1, static_cast<int>(made.size()) - 1, children);
        }
        return made;
    }();
    return trees;
}

// For each tree the products of the stages that weights are applied to.
template <class Pair>
std::vector<std::vector<long double>> stage_products()
{
    std::vector<std::vector<long double>> products;
    for (const Tree &tree : rooted_trees()) {
        std::vector<long double> product(Pair::kSlots, 1.0L);
        for (const int child : tree.children)
            for (int i = 0; i < Pair::kSlots; ++i) {
                long double sum = 0.0L;
                for (int j = 0; j < i; ++j) sum += static_cast<long double>(Pair::a[i][j]) * products[child][j];
                product[i] *= sum;
            }
        products.push_back(product);
    }
    return products;
}

// The largest residual of the conditions of one order.
template <class Weight>
double residual(const std::vector<std::vector<long double>> &products, int order, int stages, Weight weight,
                double theta = 1.0)
{
    double worst = 0.0;
    for (std::size_t t = 0; t < products.size(); ++t) {
        const Tree &tree = rooted_trees()[t];
        if (tree.order != order) continue;
        long double sum = -std::pow(static_cast<long double>(theta), order) / tree.gamma;
        for (int i = 0; i < stages; ++i) sum += weight(i) * products[t][i];
        worst = std::max(worst, std::fabs(static_cast<double>(sum)));
    }
    return worst;
}

constexpr double kRounding = 3e-14; // coefficients up to 17, each rounded once
constexpr double kFails = 1e-7;

template <class Pair>
void expect_orders()
{
    const auto products = stage_products<Pair>();
    const auto advancing = [](int i) { return static_cast<long double>(Pair::b[i]); };
    const auto embedded = [](int i) { return static_cast<long double>(Pair::b[i]) - Pair::e[i]; };
    for (int i = 0; i < Pair::kSlots; ++i) {
        long double sum = 0.0L;
        for (int j = 0; j < i; ++j) sum += Pair::a[i][j];
        EXPECT_NEAR(static_cast<double>(sum), Pair::c[i], kRounding) << "stage " << i + 1;
    }
    for (int order = 1; order <= Pair::kOrder + 1; ++order)
        EXPECT_LT(residual(products, order, Pair::kStages, advancing), kRounding) << "order " << order;
    for (int order = 1; order <= Pair::kOrder; ++order)
        EXPECT_LT(residual(products, order, Pair::kStages, embedded), kRounding) << "embedded, order " << order;
    EXPECT_GT(residual(products, Pair::kOrder + 2, Pair::kStages, advancing), kFails);
    EXPECT_GT(residual(products, Pair::kOrder + 1, Pair::kStages, embedded), kFails);
    if (!Pair::kFirstSameAsLast) return;
    for (int j = 0; j < Pair::kStages - 1; ++j) EXPECT_EQ(Pair::a[Pair::kStages - 1][j], Pair::b[j]);
}

TEST(RungeKuttaTables, FulfilTheConditionsOfTheirOrders)
{
    EXPECT_EQ(rooted_trees().size(), 1 + 1 + 2 + 4 + 9 + 20 + 48 + 115 + 286u);
    expect_orders<Pair23>();
    expect_orders<Pair45>();
    expect_orders<Pair78>();
}

TEST(RungeKuttaTables, InterpolantHasOrderFiveAllOverTheStep)
{
    const auto products = stage_products<Pair45>();
    for (const double theta : {0.0, 0.137, 0.5, 0.863, 1.0}) {
        const long double sigma = theta - 1.0L;
        const auto weight = [&](int i) {
            long double sum = i < Pair45::kStages ? Pair45::b[i] : 0.0;
            if (i == Pair45::kStages - 1) sum += sigma;
            for (int j = 0; j < 5; ++j) sum += Pair45::r[i][j] * std::pow(sigma, j + 2);
            return sum;
        };
        for (int order = 1; order <= 5; ++order)
            EXPECT_LT(residual(products, order, Pair45::kSlots, weight, theta), 10.0 * kRounding) << theta;
    }
}

} // namespace
