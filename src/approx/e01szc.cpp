// e01szc: releases an interpolant of scattered data.
#include <kor/e01.h>

#include <initializer_list>

#include <kor/x04.h>

void e01szc(KorScatterRecord *comm)
{
    if (comm->has_memory == 0) return;
    for (double **array : {&comm->x, &comm->y, &comm->f, &comm->quad, &comm->grads})
        x04bdc(reinterpret_cast<void **>(array));
    x04bdc(reinterpret_cast<void **>(&comm->mesh));
    comm->has_memory = 0;
}
