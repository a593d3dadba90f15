// f06jmc: position of the element of a complex vector with the greatest |re| + |im| (izamax).
#include <kor/f06.h>

#include "linalg/norm.hpp"

Integer f06jmc(Integer n, const Complex x[], Integer incx) { return kor::linalg::index_of_greatest(n, x, incx) + 1; }
