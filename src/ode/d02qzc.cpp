// d02qzc: the solution within the last step of an Adams integration.
#include <kor/d02.h>

#include <algorithm>

#include "frame/report.hpp"
#include "ode/adams_record.hpp"

using namespace kor::ode;

void d02qzc(Integer neqf, double twant, Integer nwant, double ywant[], double ypwant[], KorAdamsOptions *opt,
            KorError *fail)
{
    const kor::Report report{"d02qzc", fail};
    if (!is_stamped(*opt)) return report.error<NE_NO_SETUP>(kAdamsSetupName);
    if (!was_set_up(*opt)) return report.error<NE_SETUP_ERROR>(kAdamsSetupName);
    if (opt->setup_done == kSetUp) return report.error<NE_NO_INTEGRATE>();
    if (neqf != opt->neqf) return report.error<NE_NEQF>(neqf, opt->neqf);
    if (nwant > neqf) return report.error<NE_NWANT_GT>(nwant, neqf);
    if (nwant < 1) return report.error<NE_INT_ARG_LT>("nwant", "1", "nwant", nwant);
    Adams &adams = integration_of(*opt).adams;
    if (adams.steps() == 0) return report.error<NE_NO_STEPS>();

    adams.interpolate(twant, nwant, ywant, ypwant);
    const auto [first, last] = std::minmax({adams.t_old(), adams.t()});
    if (!(first <= twant && twant <= last)) return report.error<NW_EXTRAPOLATION>("twant", twant);
    report.success();
}
