// p01aby_f, p01abw_f: report one invalid parameter of a kernel.
//
// The formats print one character of each name, "%1.1s": that is what callers have always seen, and it stays.
#include <cstdio>
#include <cstring>

#include "frame/kernel_report.hpp"
#include "frame/units.hpp"

namespace kor {

namespace {

constexpr std::size_t kRecord = 160;

bool soft_and_silent(Integer ifail) { return ifail % 10 == 1 && (ifail / 10) % 10 == 0; }

void write_record(const char *record)
{
    Integer unit = 0;
    x04aaf_f(0, &unit);
    x04baf_f(unit, " ", 1);
    x04baf_f(unit, record, static_cast<Integer>(std::strlen(record)));
}

} // namespace

void p01aby_f(Integer ivalue, const char *name, Integer ifail, Integer *nerr, const char *srname)
{
    ++*nerr;
    if (soft_and_silent(ifail)) return;
    char record[kRecord];
    std::snprintf(record, sizeof record,
                  " *****  Parameter  %1.1s  is invalid in routine  %1.1s  ***** \n        Value supplied is %6ld",
                  name, srname, static_cast<long>(ivalue));
    write_record(record);
}

void p01abw_f(const char *svalue, const char *name, Integer ifail, Integer *nerr, const char *srname)
{
    ++*nerr;
    if (soft_and_silent(ifail)) return;
    char record[kRecord];
    std::snprintf(
        record, sizeof record,
        " *****  Parameter  %1.1s  is invalid in routine  %1.1s  ***** \n        Value supplied is\n        %1.1s",
        name, srname, svalue);
    write_record(record);
}

} // namespace kor
