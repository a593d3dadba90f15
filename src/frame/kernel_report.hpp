// Reports of the kernels that return an integer status: by a failure mode, `ifail`, to the standard output stream.
// Public routines call such kernels with ifail = 1, soft and silent.
#pragma once

#include <kor.h>

namespace kor {

// Closing report of a kernel: prints as `ifail` asks, and returns `ierror`. `rec`, which may be null, is one text.
// The tens digit of `ifail` asks for print, its last digit makes the failure soft (1) or hard (else); 0, -1 and -13 print
// too, and -13 prints `rec` alone. No mode ends the process.
Integer p01abf_f(Integer ifail, Integer ierror, const char *srname, Integer nrec, const char *rec);

// The same for a kernel that names its status variable: `varbl`; `rec` goes to the standard error stream.
Integer p01acf_f(Integer ifail, Integer ierror, const char *srname, const char *varbl, Integer nrec, const char *rec);

// One invalid parameter, an integer or a text: counted in `nerr`, printed unless `ifail` is soft and silent.
void p01aby_f(Integer ivalue, const char *name, Integer ifail, Integer *nerr, const char *srname);
void p01abw_f(const char *svalue, const char *name, Integer ifail, Integer *nerr, const char *srname);

// Stops after a hard failure, says the text; in truth it returns and does nothing, and callers rely on that.
void p01abz_f();

} // namespace kor
