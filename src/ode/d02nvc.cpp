// d02nvc: sets up the backward differentiation method.
#include <kor/d02.h>

#include "ode/bdf.hpp"

void d02nvc(Integer neq, Integer nhist, Integer maxord, KorBdfState *st, Integer *status)
{
    *status = neq < 1 || maxord < 1 || maxord > kor::ode::kBdfMaxOrder || nhist < maxord + 1;
    if (*status != 0) return;
    st->stamp1 = kor::ode::kBdfStamp1;
    st->stamp2 = kor::ode::kBdfStamp2;
    st->neq = neq;
    st->nhist = nhist;
    st->maxord = maxord;
    st->jacobian = 0;
    st->one_step = st->crit = 0;
    st->tcrit = 0.0;
    st->order = st->steps = st->rejected = st->derivatives = st->jacobians = st->factorisations = 0;
    st->t = st->hlast = st->hnext = 0.0;
    kor::ode::bdf_clear(*st);
}
