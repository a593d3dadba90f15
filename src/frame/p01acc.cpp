// p01acc: reports an outcome through an error record: the one reporter of the library.
#include <kor/p01.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "frame/catalogue.hpp"

extern "C" const char *const kor_errlist[KOR_ERROR_COUNT + 1] = {
#define KOR_ERROR(key, text) #key ":\n  " text,
#include <kor/errors.def>
#undef KOR_ERROR
    ""};

namespace {

// The word is chosen by the text, never by the code: an 'E' behind the first 'N' of the key's head makes an error.
bool is_error_text(const char *text)
{
    const std::size_t length = strnlen(text, 6);
    const char *head_end = text + std::min<std::size_t>(length, 5);
    const char *n = std::find(text, head_end, 'N');
    const std::size_t index = n == head_end ? 5 : static_cast<std::size_t>(n - text) + 1;
    return index < length && text[index] == 'E';
}

} // namespace

void p01acc(const char *message, Integer code, const char *routine, KorError *fail)
{
    const bool known = code >= 0 && code < KOR_ERROR_COUNT;
    const char *text = message != nullptr ? message : kor_errlist[known ? code : KOR_ERROR_COUNT];

    if (code != NE_NOERROR && (fail == nullptr || fail->print != 0))
        // One call for the whole text: the reports of several threads follow one another and do not mix.
        std::fprintf(stderr,
                     is_error_text(text) ? "Error detected by KOR routine %s:\n%s\n"
                                         : "Warning from KOR routine %s:\n%s\n",
                     routine, text);

    if (fail == nullptr) {
        if (code == NE_NOERROR) return;
        std::fputs("...Program Terminated\n", stderr);
        std::exit(EXIT_FAILURE);
    }

    fail->code = code;
    if (fail->handler != nullptr) fail->handler(text, code, routine);
    // The text may be the record's own message, passed on: the copy then lands on itself.
    const std::size_t length = strnlen(text, sizeof fail->message - 1);
    std::memmove(fail->message, text, length);
    fail->message[length] = '\0';
}
