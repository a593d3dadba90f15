// d02qyc: frees the memory of an Adams integration.
#include <kor/d02.h>

#include "ode/adams_record.hpp"

void d02qyc(KorAdamsOptions *opt)
{
    if (!kor::ode::is_stamped(*opt)) return;
    for (void *block : {static_cast<void *>(opt->work), opt->kernel, opt->events})
        if (block != nullptr) x04bdc(&block);
    opt->work = opt->rtol = opt->atol = nullptr;
    opt->kernel = opt->events = nullptr;
    opt->stamp1 = opt->stamp2 = 0;
    opt->setup_done = kor::ode::kSetupFailed;
}
