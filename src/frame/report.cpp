// The formatting half of kor::Report.
#include "frame/report.hpp"

#include <cstdarg>
#include <cstdio>

namespace kor {

void Report::format_and_report(Integer code, ...) const
{
    char text[sizeof(KorError::message)];
    va_list arguments;
    va_start(arguments, code);
    std::vsnprintf(text, sizeof text, kCatalogue[static_cast<std::size_t>(code)], arguments);
    va_end(arguments);
    p01acc(text, code, routine_, fail_);
}

} // namespace kor
