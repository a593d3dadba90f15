// x04baz: prints a text of a chapter's catalogue, without its key.
#include <cstring>
#include <string_view>

#include "frame/messages.hpp"
#include "frame/sink_stream.hpp"

namespace kor {

namespace {

// The g12 catalogue is not among them: the one routine that uses it fills in its entries itself.
const char *const *catalogue_of(std::string_view chapter)
{
    if (chapter == "E04") return kor_e04mesg;
    if (chapter == "G13") return kor_g13mesg;
    if (chapter == "G02") return kor_g02mesg;
    if (chapter == "G03") return kor_g03mesg;
    if (chapter == "H02") return kor_h02mesg;
    return nullptr;
}

// Key, colon and one separator, a blank or a newline, are not for the reader.
const char *behind_the_key(const char *text)
{
    const char *colon = std::strchr(text, ':');
    if (colon == nullptr) return text;
    return colon[1] == '\0' ? colon + 1 : colon + 2;
}

bool is_due(const KorComm &control)
{
    return (control.it_prt | control.it_maj_prt | control.sol_sqp_prt | control.sol_prt) != 0;
}

} // namespace

void x04baz(KorMesgSink *sink, const char *message, Integer index, KorComm *print_control)
{
    const char *text = message;
    if (text == nullptr) {
        const char *const *catalogue = sink->chapter != nullptr ? catalogue_of(sink->chapter) : nullptr;
        if (catalogue == nullptr) return;
        text = catalogue[index];
    }
    if (print_control == nullptr || is_due(*print_control)) write_to_sink(*sink, behind_the_key(text), "");
    if (print_control != nullptr && print_control->print_hook != nullptr && sink->status == 0)
        print_control->print_hook(text, index, print_control->p);
}

} // namespace kor
