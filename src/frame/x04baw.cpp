// x04baw: prints a text of a chapter as it stands.
#include "frame/sink_stream.hpp"

namespace kor {

void x04baw(KorMesgSink *sink, const char *text) { write_to_sink(*sink, text, ""); }

} // namespace kor
