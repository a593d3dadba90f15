// p01abf_f, p01acf_f, p01abz_f: closing reports of the kernels.
#include "frame/kernel_report.hpp"

#include <cstdio>
#include <cstring>
#include <string_view>

#include "frame/units.hpp"

namespace kor {

namespace {

constexpr Integer kMessageOnly = -13;
constexpr std::size_t kLine = 160;

bool wants_output(Integer ifail)
{
    return ifail == 0 || ifail == -1 || ifail == kMessageOnly || (ifail > 0 && (ifail / 10) % 10 != 0);
}

void write_line(const char *line)
{
    Integer unit = 0;
    x04aaf_f(0, &unit);
    x04baf_f(unit, line, static_cast<Integer>(std::strlen(line)));
}

// The header line, and what kind of failure it is. The hard one says that execution ends, and returns.
void write_abnormal_exit(const char *header, Integer ifail)
{
    write_line(header);
    const Integer last_digit = ifail % 10;
    if (last_digit == 1 || last_digit == -1) {
        write_line(" ** KOR soft failure - control returned");
    } else {
        write_line(" ** KOR hard failure - execution terminated");
        p01abz_f();
    }
}

std::string_view without_trailing_blanks(const char *text)
{
    const std::string_view all{text != nullptr ? text : ""};
    return all.substr(0, all.find_last_not_of(' ') + 1);
}

} // namespace

void p01abz_f() {}

Integer p01abf_f(Integer ifail, Integer ierror, const char *srname, Integer nrec, const char *rec)
{
    if (ierror == 0 || !wants_output(ifail)) return ierror;
    if (nrec != 0 && rec != nullptr) write_line(rec);
    if (ifail == kMessageOnly) return ierror;

    char header[kLine];
    std::snprintf(header, sizeof header, " ** ABNORMAL EXIT from KOR Library routine %s: IFAIL =%6ld **", srname,
                  static_cast<long>(ierror));
    write_abnormal_exit(header, ifail);
    return ierror;
}

Integer p01acf_f(Integer ifail, Integer ierror, const char *srname, const char *varbl, Integer nrec, const char *rec)
{
    if (ierror == 0 || !wants_output(ifail)) return ierror;
    if (nrec != 0 && rec != nullptr) std::fprintf(stderr, "%s\n", rec);
    if (ifail == kMessageOnly) return ierror;

    const std::string_view variable = without_trailing_blanks(varbl);
    char header[kLine];
    if (variable.empty())
        std::snprintf(header, sizeof header, " ** ABNORMAL EXIT from KOR Library routine %6.6s", srname);
    else
        std::snprintf(header, sizeof header, " ** ABNORMAL EXIT from KOR Library routine %6.6s: %.*s = %6ld", srname,
                      static_cast<int>(variable.size()), variable.data(), static_cast<long>(ierror));
    write_abnormal_exit(header, ifail);
    return ierror;
}

} // namespace kor
