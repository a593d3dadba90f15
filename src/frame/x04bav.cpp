// x04bav: prints one line of a chapter.
#include "frame/sink_stream.hpp"

namespace kor {

void x04bav(KorMesgSink *sink, const char *text) { write_to_sink(*sink, text, "\n"); }

} // namespace kor
