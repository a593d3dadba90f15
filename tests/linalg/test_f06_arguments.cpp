// Illegal arguments: told on the standard error stream by name and number, the first offence only, nothing touched, and the
// process goes on. Each routine is called with each of its tested arguments spoiled in turn, and with all later ones
// spoiled as well.
#include <functional>
#include <set>
#include <string>

#include "linalg/reference.hpp"

namespace kor::testing {
namespace {

constexpr Integer kBig = 100;

// Arrays that every call may use; 100 elements are enough for the small sizes below.
struct Arrays {
    std::vector<double> a = std::vector<double>(kBig, 0.5), b = a, c = a, s = a;
    std::vector<Complex> za = std::vector<Complex>(kBig, Complex{0.5, 0.25}), zb = za, zc = za, zs = za;
    double result = 0.0, alpha = 0.5;
    Complex zalpha{0.5, 0.25};
    auto bytes() const
    {
        std::vector<double> all;
        for (const auto *v : {&a, &b, &c, &s}) all.insert(all.end(), v->begin(), v->end());
        for (const auto *v : {&za, &zb, &zc, &zs})
            for (const Complex z : *v) all.insert(all.end(), {z.re, z.im});
        all.insert(all.end(), {result, alpha, zalpha.re, zalpha.im});
        return all;
    }
};

// A routine: its name in reports; number, good and bad value of each tested argument; the call with given values.
struct Case {
    const char *name;
    struct Argument {
        Integer number, good, bad;
    };
    std::vector<Argument> arguments;
    std::function<void(Arrays &, const Integer *)> call;
};

std::string expected_report(const char *name, Integer number)
{
    return std::string{"Error detected by KOR routine "} + name +
           ":\nNE_F06_BAD_PARAM:\n  On entry, parameter number " + std::to_string(number) + " had an illegal value.\n";
}

void expect_refusals(const Case &routine)
{
    std::vector<Integer> good;
    for (const auto &argument : routine.arguments) good.push_back(argument.good);
    for (std::size_t k = 0; k < good.size(); ++k)
        for (const bool later_too : {false, true}) {
            std::vector<Integer> values = good;
            for (std::size_t l = k; l < (later_too ? good.size() : k + 1); ++l) values[l] = routine.arguments[l].bad;
            Arrays arrays;
            const auto before = arrays.bytes();
            ::testing::internal::CaptureStderr();
            routine.call(arrays, values.data());
            EXPECT_EQ(::testing::internal::GetCapturedStderr(),
                      expected_report(routine.name, routine.arguments[k].number));
            EXPECT_EQ(arrays.bytes(), before) << routine.name << " touched its arrays";
        }
    Arrays arrays;
    ::testing::internal::CaptureStderr();
    routine.call(arrays, good.data());
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "") << routine.name;
}

using A = Arrays &;
using V = const Integer *;
using Arguments = std::vector<Case::Argument>;

// The tested arguments of a family stand once; its real and complex members differ in name and arrays.
template <class F, class ZF>
void add(std::vector<Case> &cases, const char *real, const char *complex, const Arguments &arguments, F f, ZF zf)
{
    cases.push_back({real, arguments, f});
    cases.push_back({complex, arguments, zf});
}

std::vector<Case> standard_cases()
{
    std::vector<Case> all;
    const Complex one{1.0, 0.5};
    const Case::Argument trans1{1, NoTranspose, 0}, uplo1{1, UpperTriangle, NoTranspose};

    add(
        all, "f06pac/dgemv", "f06sac/zgemv", {trans1, {2, 2, -1}, {3, 3, -1}, {6, 3, 2}, {8, 1, 0}, {11, 1, 0}},
        [](A m, V v) { f06pac(v[0], v[1], v[2], 1.0, m.a.data(), v[3], m.b.data(), v[4], 2.0, m.c.data(), v[5]); },
        [=](A m, V v) { f06sac(v[0], v[1], v[2], one, m.za.data(), v[3], m.zb.data(), v[4], one, m.zc.data(), v[5]); });
    add(
        all, "f06pbc/dgbmv", "f06sbc/zgbmv",
        {trans1, {2, 2, -1}, {3, 3, -1}, {4, 1, -1}, {5, 2, -1}, {8, 4, 3}, {10, 1, 0}, {13, 1, 0}},
        [](A m, V v) {
            f06pbc(v[0], v[1], v[2], v[3], v[4], 1.0, m.a.data(), v[5], m.b.data(), v[6], 2.0, m.c.data(), v[7]);
        },
        [=](A m, V v) {
            f06sbc(v[0], v[1], v[2], v[3], v[4], one, m.za.data(), v[5], m.zb.data(), v[6], one, m.zc.data(), v[7]);
        });
    add(
        all, "f06pcc/dsymv", "f06scc/zhemv", {uplo1, {2, 3, -1}, {5, 3, 2}, {7, 1, 0}, {10, 1, 0}},
        [](A m, V v) { f06pcc(v[0], v[1], 1.0, m.a.data(), v[2], m.b.data(), v[3], 2.0, m.c.data(), v[4]); },
        [=](A m, V v) { f06scc(v[0], v[1], one, m.za.data(), v[2], m.zb.data(), v[3], one, m.zc.data(), v[4]); });
    add(
        all, "f06pdc/dsbmv", "f06sdc/zhbmv", {uplo1, {2, 3, -1}, {3, 2, -1}, {6, 3, 2}, {8, 1, 0}, {11, 1, 0}},
        [](A m, V v) { f06pdc(v[0], v[1], v[2], 1.0, m.a.data(), v[3], m.b.data(), v[4], 2.0, m.c.data(), v[5]); },
        [=](A m, V v) { f06sdc(v[0], v[1], v[2], one, m.za.data(), v[3], m.zb.data(), v[4], one, m.zc.data(), v[5]); });
    add(
        all, "f06pec/dspmv", "f06sec/zhpmv", {uplo1, {2, 3, -1}, {6, 1, 0}, {9, 1, 0}},
        [](A m, V v) { f06pec(v[0], v[1], 1.0, m.a.data(), m.b.data(), v[2], 2.0, m.c.data(), v[3]); },
        [=](A m, V v) { f06sec(v[0], v[1], one, m.za.data(), m.zb.data(), v[2], one, m.zc.data(), v[3]); });

    const Case::Argument trans2{2, Transpose, 4}, diag3{3, NotUnitTriangular, LeftSide}, n4{4, 3, -1};
    const Arguments full{uplo1, trans2, diag3, n4, {6, 3, 2}, {8, 1, 0}},
        band{uplo1, trans2, diag3, n4, {5, 1, -1}, {7, 2, 1}, {9, 1, 0}}, pack{uplo1, trans2, diag3, n4, {7, 1, 0}};
    const auto on_full = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], m.a.data(), v[4], m.b.data(), v[5]); };
    };
    const auto on_zfull = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], m.za.data(), v[4], m.zb.data(), v[5]); };
    };
    const auto on_band = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], v[4], m.a.data(), v[5], m.b.data(), v[6]); };
    };
    const auto on_zband = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], v[4], m.za.data(), v[5], m.zb.data(), v[6]); };
    };
    const auto on_pack = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], m.a.data(), m.b.data(), v[4]); };
    };
    const auto on_zpack = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], m.za.data(), m.zb.data(), v[4]); };
    };
    add(all, "f06pfc/dtrmv", "f06sfc/ztrmv", full, on_full(f06pfc), on_zfull(f06sfc));
    add(all, "f06pjc/dtrsv", "f06sjc/ztrsv", full, on_full(f06pjc), on_zfull(f06sjc));
    add(all, "f06pgc/dtbmv", "f06sgc/ztbmv", band, on_band(f06pgc), on_zband(f06sgc));
    add(all, "f06pkc/dtbsv", "f06skc/ztbsv", band, on_band(f06pkc), on_zband(f06skc));
    add(all, "f06phc/dtpmv", "f06shc/ztpmv", pack, on_pack(f06phc), on_zpack(f06shc));
    add(all, "f06plc/dtpsv", "f06slc/ztpsv", pack, on_pack(f06plc), on_zpack(f06slc));

    const Arguments outer{{1, 2, -1}, {2, 3, -1}, {5, 1, 0}, {7, 1, 0}, {9, 3, 2}};
    all.push_back({"f06pmc/dger", outer,
                   [](A m, V v) { f06pmc(v[0], v[1], 1.0, m.b.data(), v[2], m.c.data(), v[3], m.a.data(), v[4]); }});
    all.push_back({"f06smc/zgeru", outer, [=](A m, V v) {
                       f06smc(v[0], v[1], one, m.zb.data(), v[2], m.zc.data(), v[3], m.za.data(), v[4]);
                   }});
    all.push_back({"f06snc/zgerc", outer, [=](A m, V v) {
                       f06snc(v[0], v[1], one, m.zb.data(), v[2], m.zc.data(), v[3], m.za.data(), v[4]);
                   }});
    add(
        all, "f06ppc/dsyr", "f06spc/zher", {uplo1, {2, 3, -1}, {5, 1, 0}, {7, 3, 2}},
        [](A m, V v) { f06ppc(v[0], v[1], 1.0, m.b.data(), v[2], m.a.data(), v[3]); },
        [](A m, V v) { f06spc(v[0], v[1], 1.0, m.zb.data(), v[2], m.za.data(), v[3]); });
    add(
        all, "f06pqc/dspr", "f06sqc/zhpr", {uplo1, {2, 3, -1}, {5, 1, 0}},
        [](A m, V v) { f06pqc(v[0], v[1], 1.0, m.b.data(), v[2], m.a.data()); },
        [](A m, V v) { f06sqc(v[0], v[1], 1.0, m.zb.data(), v[2], m.za.data()); });
    add(
        all, "f06prc/dsyr2", "f06src/zher2", {uplo1, {2, 3, -1}, {5, 1, 0}, {7, 1, 0}, {9, 3, 2}},
        [](A m, V v) { f06prc(v[0], v[1], 1.0, m.b.data(), v[2], m.c.data(), v[3], m.a.data(), v[4]); },
        [=](A m, V v) { f06src(v[0], v[1], one, m.zb.data(), v[2], m.zc.data(), v[3], m.za.data(), v[4]); });
    add(
        all, "f06psc/dspr2", "f06ssc/zhpr2", {uplo1, {2, 3, -1}, {5, 1, 0}, {7, 1, 0}},
        [](A m, V v) { f06psc(v[0], v[1], 1.0, m.b.data(), v[2], m.c.data(), v[3], m.a.data()); },
        [=](A m, V v) { f06ssc(v[0], v[1], one, m.zb.data(), v[2], m.zc.data(), v[3], m.za.data()); });

    // Transposed, A has m columns and B k: the trailing dimensions follow.
    const Arguments plain{trans1,     {2, NoTranspose, 0}, {3, 2, -1}, {4, 3, -1},
                          {5, 4, -1}, {8, 4, 3},           {10, 3, 2}, {13, 3, 2}};
    const Arguments turned{{1, Transpose, 0}, {2, Transpose, 0}, {3, 2, -1}, {4, 3, -1},
                           {5, 4, -1},        {8, 2, 1},         {10, 4, 3}, {13, 3, 2}};
    for (const Arguments &arguments : {plain, turned})
        add(
            all, "f06yac/dgemm", "f06zac/zgemm", arguments,
            [](A m, V v) {
                f06yac(v[0], v[1], v[2], v[3], v[4], 1.0, m.a.data(), v[5], m.b.data(), v[6], 2.0, m.c.data(), v[7]);
            },
            [=](A m, V v) {
                f06zac(v[0], v[1], v[2], v[3], v[4], one, m.za.data(), v[5], m.zb.data(), v[6], one, m.zc.data(), v[7]);
            });
    const auto symm = [=](auto f) {
        return [=](A m, V v) {
            f(v[0], v[1], v[2], v[3], one, m.za.data(), v[4], m.zb.data(), v[5], one, m.zc.data(), v[6]);
        };
    };
    const auto trmm = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], v[4], v[5], 1.0, m.a.data(), v[6], m.b.data(), v[7]); };
    };
    const auto ztrmm = [=](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], v[4], v[5], one, m.za.data(), v[6], m.zb.data(), v[7]); };
    };
    for (const Integer side : kSides) {
        const Integer order = side == LeftSide ? 2 : 3;
        const Case::Argument side1{1, side, 7}, uplo2{2, LowerTriangle, 6};
        const Arguments symmetric{side1, uplo2, {3, 2, -1}, {4, 3, -1}, {7, order, order - 1}, {9, 3, 2}, {12, 3, 2}};
        const Arguments triangular{side1,      uplo2,      {3, ConjugateTranspose, 0}, {4, UnitTriangular, 0},
                                   {5, 2, -1}, {6, 3, -1}, {9, order, order - 1},      {11, 3, 2}};
        all.push_back({"f06ycc/dsymm", symmetric, [](A m, V v) {
                           f06ycc(v[0], v[1], v[2], v[3], 1.0, m.a.data(), v[4], m.b.data(), v[5], 2.0, m.c.data(),
                                  v[6]);
                       }});
        all.push_back({"f06zcc/zhemm", symmetric, symm(f06zcc)});
        all.push_back({"f06ztc/zsymm", symmetric, symm(f06ztc)});
        add(all, "f06yfc/dtrmm", "f06zfc/ztrmm", triangular, trmm(f06yfc), ztrmm(f06zfc));
        add(all, "f06yjc/dtrsm", "f06zjc/ztrsm", triangular, trmm(f06yjc), ztrmm(f06zjc));
    }
    // Of a complex update only one transposition is legal: which, tells its symmetry.
    for (const bool transposed : {false, true}) {
        const Integer td = transposed ? 3 : 4; // n = 3, k = 4
        const auto rank_k = [=](Integer good, Integer bad) {
            return Arguments{
                uplo1, {2, transposed ? good : NoTranspose, bad}, {3, 3, -1}, {4, 4, -1}, {7, td, td - 1}, {10, 3, 2}};
        };
        const auto rank_2k = [=](Integer good, Integer bad) {
            return Arguments{uplo1,           {2, transposed ? good : NoTranspose, bad},
                             {3, 3, -1},      {4, 4, -1},
                             {7, td, td - 1}, {9, td, td - 1},
                             {12, 3, 2}};
        };
        all.push_back({"f06ypc/dsyrk", rank_k(ConjugateTranspose, 0),
                       [](A m, V v) { f06ypc(v[0], v[1], v[2], v[3], 1.0, m.a.data(), v[4], 2.0, m.c.data(), v[5]); }});
        all.push_back({"f06zpc/zherk", rank_k(ConjugateTranspose, Transpose), [](A m, V v) {
                           f06zpc(v[0], v[1], v[2], v[3], 1.0, m.za.data(), v[4], 2.0, m.zc.data(), v[5]);
                       }});
        all.push_back({"f06zuc/zsyrk", rank_k(Transpose, ConjugateTranspose), [=](A m, V v) {
                           f06zuc(v[0], v[1], v[2], v[3], one, m.za.data(), v[4], one, m.zc.data(), v[5]);
                       }});
        all.push_back({"f06yrc/dsyr2k", rank_2k(Transpose, 4), [](A m, V v) {
                           f06yrc(v[0], v[1], v[2], v[3], 1.0, m.a.data(), v[4], m.b.data(), v[5], 2.0, m.c.data(),
                                  v[6]);
                       }});
        all.push_back({"f06zrc/zher2k", rank_2k(ConjugateTranspose, Transpose), [=](A m, V v) {
                           f06zrc(v[0], v[1], v[2], v[3], one, m.za.data(), v[4], m.zb.data(), v[5], 2.0, m.zc.data(),
                                  v[6]);
                       }});
        all.push_back({"f06zwc/zsyr2k", rank_2k(Transpose, ConjugateTranspose), [=](A m, V v) {
                           f06zwc(v[0], v[1], v[2], v[3], one, m.za.data(), v[4], m.zb.data(), v[5], one, m.zc.data(),
                                  v[6]);
                       }});
    }
    return all;
}

std::vector<Case> own_cases()
{
    std::vector<Case> all;
    const Complex one{1.0, 0.5};
    const Arguments sweep{{1, FixedPivot, TopPivot}, {2, BackwardSequence, OneNorm}};
    add(
        all, "f06fqc", "f06hqc", sweep,
        [](A m, V v) { f06fqc(v[0], v[1], 3, &m.alpha, m.a.data(), 1, m.c.data(), m.s.data()); },
        [](A m, V v) { f06hqc(v[0], v[1], 3, &m.zalpha, m.za.data(), 1, m.c.data(), m.zs.data()); });
    const Arguments copy{{1, General, SymmetricUpper}, {2, 2, -1}, {3, 3, -1}, {5, 3, 2}, {7, 3, 2}};
    add(
        all, "f06qfc", "f06tfc", copy, [](A m, V v) { f06qfc(v[0], v[1], v[2], m.a.data(), v[3], m.c.data(), v[4]); },
        [](A m, V v) { f06tfc(v[0], v[1], v[2], m.za.data(), v[3], m.zc.data(), v[4]); });
    const Arguments load{{1, LowerTriangular, InfinityNorm}, {2, 2, -1}, {3, 3, -1}, {7, 3, 2}};
    add(
        all, "f06qhc", "f06thc", load, [](A m, V v) { f06qhc(v[0], v[1], v[2], 1.0, 2.0, m.a.data(), v[3]); },
        [=](A m, V v) { f06thc(v[0], v[1], v[2], one, one, m.za.data(), v[3]); });
    const Case::Argument norm{1, OneNorm, General};
    all.push_back({"f06qgc",
                   {norm, {2, SymmetricUpper, HermitianUpper}, {3, 3, -1}, {4, 3, 2}, {6, 3, 2}},
                   [](A m, V v) { m.result = f06qgc(v[0], v[1], v[2], v[3], m.a.data(), v[4]); }});
    all.push_back({"f06vgc",
                   {norm, {2, HermitianLower, Kor_Convolution}, {3, 3, -1}, {4, 3, 4}, {6, 3, 2}},
                   [](A m, V v) { m.result = f06vgc(v[0], v[1], v[2], v[3], m.za.data(), v[4]); }});
    all.push_back({"f06rac", {norm, {2, 2, -1}, {3, 3, -1}, {5, 3, 2}}, [](A m, V v) {
                       m.result = f06rac(v[0], v[1], v[2], m.a.data(), v[3]);
                   }});
    all.push_back(
        {"f06rjc",
         {norm, {2, UpperTriangle, UpperTriangular}, {3, UnitTriangular, 0}, {4, 2, -1}, {5, 3, -1}, {7, 3, 2}},
         [](A m, V v) { m.result = f06rjc(v[0], v[1], v[2], v[3], v[4], m.a.data(), v[5]); }});
    // The fourth value goes into the sequence of interchanges.
    const Case::Argument side1{1, LeftSide, 7}, trans2{2, Transpose, 4};
    all.push_back({"f06qjc", {side1, trans2, {3, 2, -1}, {4, 0, -1}, {5, 3, -1}, {7, 3, 2}}, [](A m, V v) {
                       const Integer perm[] = {1, v[3]};
                       f06qjc(v[0], v[1], v[2], perm, v[4], m.b.data(), v[5]);
                   }});
    all.push_back({"f06qjc", {{1, RightSide, 7}, trans2, {3, 2, -1}, {4, 3, 4}, {5, 3, -1}}, [](A m, V v) {
                       const Integer perm[] = {1, v[3]};
                       f06qjc(v[0], v[1], v[2], perm, v[4], m.b.data(), 4);
                   }});
    add(
        all, "f06qkc", "f06vkc", {side1, trans2, {3, 2, -1}, {4, 1, 0}, {5, 3, -1}, {7, 3, 2}},
        [](A m, V v) {
            const double perm[] = {2.0, v[3] > 0 ? 1.9 : 0.9};
            f06qkc(v[0], v[1], v[2], perm, v[4], m.b.data(), v[5]);
        },
        [](A m, V v) {
            const double perm[] = {2.0, v[3] > 0 ? 1.9 : kNan};
            f06vkc(v[0], v[1], v[2], perm, v[4], m.zb.data(), v[5]);
        });
    const Arguments sequence{side1, {2, 4, -1}, {3, 1, 0}, {4, 4, 5}, {8, 4, 3}};
    const auto triangle_sequence = [](auto f) {
        return [=](A m, V v) { f(v[0], v[1], v[2], v[3], m.c.data(), m.s.data(), m.a.data(), v[4]); };
    };
    all.push_back({"f06qnc", sequence, triangle_sequence(f06qnc)});
    all.push_back({"f06qrc", sequence, triangle_sequence(f06qrc)});
    all.push_back({"f06qsc", sequence, triangle_sequence(f06qsc)});
    all.push_back({"f06qtc", sequence, triangle_sequence(f06qtc)});
    all.push_back({"f06qvc", sequence, triangle_sequence(f06qvc)});
    all.push_back({"f06qwc", sequence, triangle_sequence(f06qwc)});
    all.push_back({"f06ttc", sequence,
                   [](A m, V v) { f06ttc(v[0], v[1], v[2], v[3], m.c.data(), m.zs.data(), m.za.data(), v[4]); }});
    for (const Integer side : kSides) {
        const Integer order = side == LeftSide ? 3 : 4;
        const Arguments apply{{1, side, 7},
                              {2, TopPivot, FixedPivot},
                              {3, ForwardSequence, 0},
                              {4, 3, -1},
                              {5, 4, -1},
                              {6, 1, 0},
                              {7, order, order + 1},
                              {11, 4, 3}};
        all.push_back({"f06qxc", apply, [](A m, V v) {
                           f06qxc(v[0], v[1], v[2], v[3], v[4], v[5], v[6], m.c.data(), m.s.data(), m.a.data(), v[7]);
                       }});
        all.push_back({"f06vxc", apply, [](A m, V v) {
                           f06vxc(v[0], v[1], v[2], v[3], v[4], v[5], v[6], m.c.data(), m.s.data(), m.za.data(), v[7]);
                       }});
        all.push_back({"f06txc", apply, [](A m, V v) {
                           f06txc(v[0], v[1], v[2], v[3], v[4], v[5], v[6], m.c.data(), m.zs.data(), m.za.data(), v[7]);
                       }});
    }
    all.push_back({"f06qqc", {{1, 3, -1}, {4, 1, 0}, {6, 3, 2}}, [](A m, V v) {
                       f06qqc(v[0], 1.0, m.b.data(), v[1], m.a.data(), v[2], m.c.data(), m.s.data());
                   }});
    return all;
}

TEST(Arguments, StandardOperationsRefuseTheFirstIllegalOne)
{
    std::set<std::string> names;
    for (const Case &routine : standard_cases()) {
        expect_refusals(routine);
        names.insert(routine.name);
    }
    EXPECT_EQ(names.size(), 48u) << "16 + 17 operations on a matrix and a vector, 6 + 9 on matrices";
}

TEST(Arguments, OwnOperationsRefuseTheFirstIllegalOne)
{
    for (const Case &routine : own_cases()) expect_refusals(routine);
}

TEST(Arguments, BandWidthsThatOverflowAnIntegerAreNotLegal)
{
    Arrays m;
    const Integer huge = std::numeric_limits<Integer>::max();
    ::testing::internal::CaptureStderr();
    f06pbc(NoTranspose, 2, 2, huge, huge, 1.0, m.a.data(), huge, m.b.data(), 1, 1.0, m.c.data(), 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), expected_report("f06pbc/dgbmv", 8));
}

} // namespace
} // namespace kor::testing
