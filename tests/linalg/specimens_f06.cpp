#include <kor/f06.h>
#include <kor/f07.h>

#include "support/specimen.hpp"

namespace {

constexpr Complex kZ{0.5, -0.25};

// Whatever an operation may take, filled with numbers of no particular kind; all of it counts as output.
struct Data {
    double a[9], b[9], c[9], s[9], x[9], y[9], w[9], alpha = 0.7, beta = 0.3, sine = 0.0;
    Complex za[9], zb[9], zc[9], zs[9], zx[9], zy[9], zalpha{0.7, 0.2}, zbeta{0.3, -0.4}, zsine{};
    double real_perm[3] = {3.0, 2.0, 3.0};
    Integer perm[3] = {2, 1, 2}, k[4] = {-1, -1, -1, -1};
    Boolean flag = 9, unused[11] = {}; // no padding: the bytes are compared

    Data()
    {
        double next = 0.3;
        const auto number = [&] { return next = next < 0.8 ? next + 0.17 : next - 0.71; };
        for (auto *array : {a, b, c, s, x, y, w})
            for (int i = 0; i < 9; ++i) array[i] = number();
        for (auto *array : {za, zb, zc, zs, zx, zy})
            for (int i = 0; i < 9; ++i) array[i] = {number(), number()};
    }
};

} // namespace

#define F06_SPECIMEN(name, ...)                                                                                        \
    KOR_SPECIMEN_WITHOUT_RECORD(name)                                                                                  \
    {                                                                                                                  \
        Data d;                                                                                                        \
        call([&](KorError *) { __VA_ARGS__; });                                                                        \
        outputs(d);                                                                                                    \
    }

F06_SPECIMEN(f06aac, f06aac(&d.alpha, &d.beta, &d.c[0], &d.sine))
F06_SPECIMEN(f06bac, f06bac(&d.alpha, &d.beta, &d.c[0], &d.sine))
F06_SPECIMEN(f06bcc, f06bcc(0.5, &d.c[0], &d.sine))
F06_SPECIMEN(f06blc, d.alpha = f06blc(0.5, -0.25, &d.flag))
F06_SPECIMEN(f06bmc, d.alpha = f06bmc(2.0, 1.5))
F06_SPECIMEN(f06bnc, d.alpha = f06bnc(0.5, -0.25))
F06_SPECIMEN(f06cac, f06cac(&d.zalpha, &d.zbeta, &d.c[0], &d.zsine))
F06_SPECIMEN(f06ccc, f06ccc(kZ, &d.c[0], &d.zsine))
F06_SPECIMEN(f06clc, d.zalpha = f06clc(kZ, d.zbeta, &d.flag))
F06_SPECIMEN(f06dbc, f06dbc(3, 7, d.k, 1))
F06_SPECIMEN(f06dfc, f06dfc(3, d.perm, 1, d.k, 1))
F06_SPECIMEN(f06eac, d.alpha = f06eac(3, d.x, 1, d.y, 1))
F06_SPECIMEN(f06ecc, f06ecc(3, 0.5, d.x, 1, d.y, 1))
F06_SPECIMEN(f06edc, f06edc(3, 0.5, d.x, 1))
F06_SPECIMEN(f06efc, f06efc(3, d.x, 1, d.y, 1))
F06_SPECIMEN(f06egc, f06egc(3, d.x, 1, d.y, 1))
F06_SPECIMEN(f06ejc, d.alpha = f06ejc(3, d.x, 1))
F06_SPECIMEN(f06ekc, d.alpha = f06ekc(3, d.x, 1))
F06_SPECIMEN(f06epc, f06epc(3, d.x, 1, d.y, 1, 0.6, 0.8))
F06_SPECIMEN(f06fbc, f06fbc(3, 0.5, d.x, 1))
F06_SPECIMEN(f06fcc, f06fcc(3, d.w, 1, d.x, 1))
F06_SPECIMEN(f06fdc, f06fdc(3, 0.5, d.x, 1, d.y, 1))
F06_SPECIMEN(f06fgc, f06fgc(3, d.x, 1))
F06_SPECIMEN(f06fjc, f06fjc(3, d.x, 1, &d.alpha, &d.beta))
F06_SPECIMEN(f06flc, f06flc(3, d.x, 1, &d.alpha, &d.beta))
F06_SPECIMEN(f06fpc, f06fpc(3, d.x, 1, d.y, 1, 0.6, 0.8))
F06_SPECIMEN(f06fqc, f06fqc(VariablePivot, BackwardSequence, 3, &d.alpha, d.x, 1, d.c, d.s))
F06_SPECIMEN(f06frc, f06frc(3, &d.alpha, d.x, 1, 0.0, &d.beta))
F06_SPECIMEN(f06fsc, f06fsc(3, &d.alpha, d.x, 1, 0.0, &d.beta))
F06_SPECIMEN(f06ftc, f06ftc(3, &d.alpha, d.y, 1, 1.2, d.w, 1))
F06_SPECIMEN(f06fuc, f06fuc(3, d.w, 1, 1.2, &d.alpha, d.x, 1))
F06_SPECIMEN(f06gbc, d.zalpha = f06gbc(3, d.zx, 1, d.zy, 1))
F06_SPECIMEN(f06gcc, f06gcc(3, kZ, d.zx, 1, d.zy, 1))
F06_SPECIMEN(f06gdc, f06gdc(3, kZ, d.zx, 1))
F06_SPECIMEN(f06gfc, f06gfc(3, d.zx, 1, d.zy, 1))
F06_SPECIMEN(f06ggc, f06ggc(3, d.zx, 1, d.zy, 1))
F06_SPECIMEN(f06hbc, f06hbc(3, kZ, d.zx, 1))
F06_SPECIMEN(f06hgc, f06hgc(3, d.zx, 1))
F06_SPECIMEN(f06hpc, f06hpc(3, d.zx, 1, d.zy, 1, kZ, d.zbeta))
F06_SPECIMEN(f06hqc, f06hqc(VariablePivot, BackwardSequence, 3, &d.zalpha, d.zx, 1, d.c, d.zs))
F06_SPECIMEN(f06hrc, f06hrc(3, &d.zalpha, d.zx, 1, 0.0, &d.zbeta))
F06_SPECIMEN(f06jdc, f06jdc(3, 0.5, d.zx, 1))
F06_SPECIMEN(f06jjc, d.alpha = f06jjc(3, d.zx, 1))
F06_SPECIMEN(f06jkc, d.alpha = f06jkc(3, d.zx, 1))
F06_SPECIMEN(f06jlc, d.k[0] = f06jlc(3, d.x, 1))
F06_SPECIMEN(f06jmc, d.k[0] = f06jmc(3, d.zx, 1))
F06_SPECIMEN(f06kfc, f06kfc(3, d.x, 1, d.zy, 1))
F06_SPECIMEN(f06kjc, f06kjc(3, d.zx, 1, &d.alpha, &d.beta))
F06_SPECIMEN(f06klc, d.k[0] = f06klc(3, d.x, 1, 0.0))
F06_SPECIMEN(f06pac, f06pac(NoTranspose, 3, 3, 0.5, d.a, 3, d.x, 1, 0.5, d.y, 1))
F06_SPECIMEN(f06pbc, f06pbc(NoTranspose, 3, 3, 1, 1, 0.5, d.a, 3, d.x, 1, 0.5, d.y, 1))
F06_SPECIMEN(f06pcc, f06pcc(UpperTriangle, 3, 0.5, d.a, 3, d.x, 1, 0.5, d.y, 1))
F06_SPECIMEN(f06pdc, f06pdc(UpperTriangle, 3, 2, 0.5, d.a, 3, d.x, 1, 0.5, d.y, 1))
F06_SPECIMEN(f06pec, f06pec(UpperTriangle, 3, 0.5, d.a, d.x, 1, 0.5, d.y, 1))
F06_SPECIMEN(f06pfc, f06pfc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.a, 3, d.x, 1))
F06_SPECIMEN(f06pgc, f06pgc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 2, d.a, 3, d.x, 1))
F06_SPECIMEN(f06phc, f06phc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.a, d.x, 1))
F06_SPECIMEN(f06pjc, f06pjc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.a, 3, d.x, 1))
F06_SPECIMEN(f06pkc, f06pkc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 2, d.a, 3, d.x, 1))
F06_SPECIMEN(f06plc, f06plc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.a, d.x, 1))
F06_SPECIMEN(f06pmc, f06pmc(3, 3, 0.5, d.x, 1, d.y, 1, d.a, 3))
F06_SPECIMEN(f06ppc, f06ppc(UpperTriangle, 3, 0.5, d.x, 1, d.a, 3))
F06_SPECIMEN(f06pqc, f06pqc(UpperTriangle, 3, 0.5, d.x, 1, d.a))
F06_SPECIMEN(f06prc, f06prc(UpperTriangle, 3, 0.5, d.x, 1, d.y, 1, d.a, 3))
F06_SPECIMEN(f06psc, f06psc(UpperTriangle, 3, 0.5, d.x, 1, d.y, 1, d.a))
F06_SPECIMEN(f06qfc, f06qfc(UpperTriangular, 3, 3, d.a, 3, d.b, 3))
F06_SPECIMEN(f06qgc, d.alpha = f06qgc(FrobeniusNorm, UpperTriangular, 3, 3, d.a, 3))
F06_SPECIMEN(f06qhc, f06qhc(UpperTriangular, 3, 3, 0.5, 0.5, d.a, 3))
F06_SPECIMEN(f06qjc, f06qjc(LeftSide, Transpose, 3, d.perm, 2, d.b, 3))
F06_SPECIMEN(f06qkc, f06qkc(LeftSide, Transpose, 3, d.real_perm, 2, d.b, 3))
F06_SPECIMEN(f06qnc, f06qnc(LeftSide, 3, 1, 3, d.c, d.s, d.a, 3))
F06_SPECIMEN(f06qqc, f06qqc(3, 0.5, d.x, 1, d.a, 3, d.c, d.s))
F06_SPECIMEN(f06qrc, f06qrc(LeftSide, 3, 1, 3, d.c, d.s, d.a, 3))
F06_SPECIMEN(f06qsc, f06qsc(LeftSide, 3, 1, 3, d.c, d.s, d.a, 3))
F06_SPECIMEN(f06qtc, f06qtc(LeftSide, 3, 1, 3, d.c, d.s, d.a, 3))
F06_SPECIMEN(f06qvc, f06qvc(LeftSide, 3, 1, 3, d.c, d.s, d.a, 3))
F06_SPECIMEN(f06qwc, f06qwc(LeftSide, 3, 1, 3, d.c, d.s, d.a, 3))
F06_SPECIMEN(f06qxc, f06qxc(LeftSide, VariablePivot, BackwardSequence, 3, 3, 1, 3, d.c, d.s, d.a, 3))
F06_SPECIMEN(f06rac, d.alpha = f06rac(FrobeniusNorm, 3, 3, d.a, 3))
F06_SPECIMEN(f06rjc, d.alpha = f06rjc(FrobeniusNorm, UpperTriangle, NotUnitTriangular, 3, 3, d.a, 3))
F06_SPECIMEN(f06sac, f06sac(NoTranspose, 3, 3, kZ, d.za, 3, d.zx, 1, kZ, d.zy, 1))
F06_SPECIMEN(f06sbc, f06sbc(NoTranspose, 3, 3, 1, 1, kZ, d.za, 3, d.zx, 1, kZ, d.zy, 1))
F06_SPECIMEN(f06scc, f06scc(UpperTriangle, 3, kZ, d.za, 3, d.zx, 1, kZ, d.zy, 1))
F06_SPECIMEN(f06sdc, f06sdc(UpperTriangle, 3, 2, kZ, d.za, 3, d.zx, 1, kZ, d.zy, 1))
F06_SPECIMEN(f06sec, f06sec(UpperTriangle, 3, kZ, d.za, d.zx, 1, kZ, d.zy, 1))
F06_SPECIMEN(f06sfc, f06sfc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.za, 3, d.zx, 1))
F06_SPECIMEN(f06sgc, f06sgc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 2, d.za, 3, d.zx, 1))
F06_SPECIMEN(f06shc, f06shc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.za, d.zx, 1))
F06_SPECIMEN(f06sjc, f06sjc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.za, 3, d.zx, 1))
F06_SPECIMEN(f06skc, f06skc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, 2, d.za, 3, d.zx, 1))
F06_SPECIMEN(f06slc, f06slc(UpperTriangle, NoTranspose, NotUnitTriangular, 3, d.za, d.zx, 1))
F06_SPECIMEN(f06smc, f06smc(3, 3, kZ, d.zx, 1, d.zy, 1, d.za, 3))
F06_SPECIMEN(f06snc, f06snc(3, 3, kZ, d.zx, 1, d.zy, 1, d.za, 3))
F06_SPECIMEN(f06spc, f06spc(UpperTriangle, 3, 0.5, d.zx, 1, d.za, 3))
F06_SPECIMEN(f06sqc, f06sqc(UpperTriangle, 3, 0.5, d.zx, 1, d.za))
F06_SPECIMEN(f06src, f06src(UpperTriangle, 3, kZ, d.zx, 1, d.zy, 1, d.za, 3))
F06_SPECIMEN(f06ssc, f06ssc(UpperTriangle, 3, kZ, d.zx, 1, d.zy, 1, d.za))
F06_SPECIMEN(f06tfc, f06tfc(UpperTriangular, 3, 3, d.za, 3, d.zb, 3))
F06_SPECIMEN(f06thc, f06thc(UpperTriangular, 3, 3, kZ, kZ, d.za, 3))
F06_SPECIMEN(f06ttc, f06ttc(LeftSide, 3, 1, 3, d.c, d.zs, d.za, 3))
F06_SPECIMEN(f06txc, f06txc(LeftSide, VariablePivot, BackwardSequence, 3, 3, 1, 3, d.c, d.zs, d.za, 3))
F06_SPECIMEN(f06vgc, d.alpha = f06vgc(FrobeniusNorm, UpperTriangular, 3, 3, d.za, 3))
F06_SPECIMEN(f06vkc, f06vkc(LeftSide, Transpose, 3, d.real_perm, 2, d.zb, 3))
F06_SPECIMEN(f06vxc, f06vxc(LeftSide, VariablePivot, BackwardSequence, 3, 3, 1, 3, d.c, d.s, d.za, 3))
F06_SPECIMEN(f06yac, f06yac(NoTranspose, NoTranspose, 3, 3, 2, 0.5, d.a, 3, d.b, 3, 0.5, d.c, 3))
F06_SPECIMEN(f06ycc, f06ycc(LeftSide, UpperTriangle, 3, 3, 0.5, d.a, 3, d.b, 3, 0.5, d.c, 3))
F06_SPECIMEN(f06yfc, f06yfc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 3, 3, 0.5, d.a, 3, d.b, 3))
F06_SPECIMEN(f06yjc, f06yjc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 3, 3, 0.5, d.a, 3, d.b, 3))
F06_SPECIMEN(f06ypc, f06ypc(UpperTriangle, NoTranspose, 3, 2, 0.5, d.a, 3, 0.5, d.c, 3))
F06_SPECIMEN(f06yrc, f06yrc(UpperTriangle, NoTranspose, 3, 2, 0.5, d.a, 3, d.b, 3, 0.5, d.c, 3))
F06_SPECIMEN(f06zac, f06zac(NoTranspose, NoTranspose, 3, 3, 2, kZ, d.za, 3, d.zb, 3, kZ, d.zc, 3))
F06_SPECIMEN(f06zcc, f06zcc(LeftSide, UpperTriangle, 3, 3, kZ, d.za, 3, d.zb, 3, kZ, d.zc, 3))
F06_SPECIMEN(f06zfc, f06zfc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 3, 3, kZ, d.za, 3, d.zb, 3))
F06_SPECIMEN(f06zjc, f06zjc(LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, 3, 3, kZ, d.za, 3, d.zb, 3))
F06_SPECIMEN(f06zpc, f06zpc(UpperTriangle, NoTranspose, 3, 2, 0.5, d.za, 3, 0.5, d.zc, 3))
F06_SPECIMEN(f06zrc, f06zrc(UpperTriangle, NoTranspose, 3, 2, kZ, d.za, 3, d.zb, 3, 0.5, d.zc, 3))
F06_SPECIMEN(f06ztc, f06ztc(LeftSide, UpperTriangle, 3, 3, kZ, d.za, 3, d.zb, 3, kZ, d.zc, 3))
F06_SPECIMEN(f06zuc, f06zuc(UpperTriangle, NoTranspose, 3, 2, kZ, d.za, 3, kZ, d.zc, 3))
F06_SPECIMEN(f06zwc, f06zwc(UpperTriangle, NoTranspose, 3, 2, kZ, d.za, 3, d.zb, 3, kZ, d.zc, 3))

KOR_SPECIMEN(f07fdc)
{
    double a[] = {4.0, 2.0, 2.0, 5.0};
    call([&](KorError *fail) { f07fdc(LowerTriangle, 2, a, 2, fail); });
    outputs(a, 4);
}
