// The one place where a sink meets its stream.
#pragma once

#include "frame/sink.hpp"

namespace kor {

// Writes `text` and then `ending`, unless the sink has failed before; a failure is kept in sink.status.
void write_to_sink(KorMesgSink &sink, const char *text, const char *ending);

} // namespace kor
