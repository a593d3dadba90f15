// d02qwc: sets up an initial value problem for the Adams integrator, or changes how one goes on.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "ode/adams_record.hpp"

namespace {

using namespace kor::ode;

constexpr Integer kUsualSteps = 1000;

struct ElementName {
    ElementName(const char *array, Integer i)
    {
        std::snprintf(text, sizeof text, "%s[%ld]", array, static_cast<long>(i));
    }
    char text[32];
};

// A setup under way must fit the one at the start. If it does not, it has been reported.
bool goes_on(const kor::Report &report, const KorAdamsOptions &opt, Integer state, Integer neqf, Boolean vectol)
{
    if (!is_stamped(opt)) return report.error<NE_NO_SETUP>(kAdamsSetupName), false;
    if (state != Kor_ReStart && state != Kor_Continue) return report.error<NE_STATE>("state"), false;
    if (neqf != opt.neqf) return report.error<NE_NEQF_CHANGED>(neqf, opt.neqf), false;
    if ((vectol != 0) != (opt.vectol != 0))
        return report.error<NE_VECTOL_CHANGED>(state == Kor_ReStart ? "Kor_ReStart" : "Kor_Continue"), false;
    return true;
}

bool allocate_main(KorAdamsOptions &opt)
{
    const Integer tolerances = opt.vectol ? opt.neqf : 1;
    kor::Workspace<double> work{adams_block(opt.neqf, tolerances)};
    kor::Workspace<AdamsIntegration> kernel{1};
    if (!work || !kernel) return false;
    opt.work = work.release();
    opt.kernel = kernel.release();
    opt.rtol = scratch_of(opt) + 2 * static_cast<std::size_t>(opt.neqf);
    opt.atol = opt.rtol + tolerances;
    integration_of(opt) = AdamsIntegration{};
    return true;
}

bool allocate_events(KorAdamsOptions &opt, Integer neqg)
{
    if (opt.events != nullptr) x04bdc(&opt.events);
    opt.events = nullptr;
    opt.neqg = neqg;
    if (neqg == 0) return true;
    kor::Workspace<EventState> states{neqg};
    if (!states) return false;
    opt.events = states.release();
    return true;
}

// If one is not right, it has been reported.
bool check_tolerances(const kor::Report &report, Integer count, const double *atol, const double *rtol)
{
    const double least = 4.0 * kor::kPrecision;
    for (Integer i = 0; i < count; ++i) {
        const ElementName a{"a_tol", i}, r{"rtol", i};
        if (!(atol[i] >= 0.0)) return report.error<NE_REAL_ARG_LT>(a.text, "0.0", a.text, atol[i]), false;
        if (!(rtol[i] >= 0.0)) return report.error<NE_REAL_ARG_LT>(r.text, "0.0", r.text, rtol[i]), false;
        if (atol[i] == 0.0 && rtol[i] < least) {
            char zero[48];
            std::snprintf(zero, sizeof zero, "%s = 0.0", a.text);
            return report.error<NE_REAL_LT_COND>(zero, r.text, "4*eps"), false;
        }
    }
    return true;
}

} // namespace

void d02qwc(Integer state, Integer neqf, Boolean vectol, const double atol[], const double rtol[], Boolean one_step,
            Boolean crit, double tcrit, double hmax, Integer max_step, Integer neqg, Boolean alter_g, Boolean sophist,
            KorAdamsOptions *opt, KorError *fail)
{
    const kor::Report report{"d02qwc", fail};
    neqg = std::max<Integer>(neqg, 0);
    const bool is_new = state == Kor_NewStart;

    if (is_new) {
        // An earlier problem of this record gives its memory back.
        d02qyc(opt);
        *opt = KorAdamsOptions{};
        opt->stamp1 = kAdamsStamp1;
        opt->stamp2 = kAdamsStamp2;
        if (neqf < 1) return report.error<NE_INT_ARG_LT>("neqf", "1", "neqf", neqf);
        opt->neqf = neqf;
        opt->vectol = vectol;
        if (!allocate_main(*opt)) {
            d02qyc(opt);
            return report.error<NE_ALLOC_FAIL>();
        }
    } else {
        if (is_stamped(*opt)) opt->setup_done = kSetupFailed; // until all is well
        if (!goes_on(report, *opt, state, neqf, vectol)) return;
        if (!alter_g && neqg != opt->neqg) return report.error<NE_NEQG_CHANGED>(neqg, opt->neqg);
    }
    if (is_new || neqg != opt->neqg) {
        if (!allocate_events(*opt, neqg)) {
            d02qyc(opt);
            return report.error<NE_ALLOC_FAIL>();
        }
        opt->events_stale = true;
    }
    if (crit != 0 && crit != 1) return report.error<NE_BOOL_NOT_SET>("crit");
    const Integer tolerances = vectol ? neqf : 1;
    if (!check_tolerances(report, tolerances, atol, rtol)) return;

    std::copy_n(rtol, tolerances, opt->rtol);
    std::copy_n(atol, tolerances, opt->atol);
    // Where nothing has been integrated yet there is nothing to continue.
    opt->state = integration_of(*opt).adams.size() > 0 ? state : Kor_NewStart;
    opt->alter_g = alter_g;
    opt->sophist = sophist;
    if (alter_g) opt->events_stale = true;
    opt->crit = crit;
    opt->tcrit = tcrit;
    opt->one_step = one_step;
    opt->hmax = std::fabs(hmax);
    opt->max_step = max_step < 1 ? kUsualSteps : max_step;
    opt->tolfac = 1.0;
    opt->setup_done = kSetUp;
    report.success();
}
