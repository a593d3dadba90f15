// The text of a limit in a report: few digits, as the reports of the special functions have always shown them.
#pragma once

#include <cstdio>

namespace kor::special {

class LimitText {
  public:
    explicit LimitText(double limit, const char *format = "%7.1g")
    {
        std::snprintf(text_, sizeof text_, format, limit);
    }
    const char *text() const { return text_; }

  private:
    char text_[24];
};

} // namespace kor::special
