// The one place where a sink meets its stream.
#include "frame/sink_stream.hpp"

#include <cstdio>
#include <string_view>

namespace kor {

namespace {

bool is_standard(const KorMesgSink &sink) { return sink.is_stdout != 0 || sink.is_stderr != 0; }

// Null when the sink has no stream; sink.status then says so. Nothing can be written to the input stream.
std::FILE *stream_of(KorMesgSink &sink)
{
    if (sink.opened == 0) {
        sink.opened = 1;
        const std::string_view name{sink.outfile};
        sink.is_stdout = name == "stdout";
        sink.is_stderr = name == "stderr";
        if (name == "stdin") {
            sink.status = NE_NOT_APPEND_FILE;
            return nullptr;
        }
    }
    if (sink.is_stdout != 0) return stdout;
    if (sink.is_stderr != 0) return stderr;

    std::FILE *file = std::fopen(sink.outfile, "a");
    if (file == nullptr) sink.status = NE_NOT_APPEND_FILE;
    return file;
}

void close_file(KorMesgSink &sink, std::FILE *file)
{
    const bool written = std::ferror(file) == 0;
    const bool closed = std::fclose(file) == 0;
    if (!written)
        sink.status = NE_WRITE_ERROR;
    else if (!closed)
        sink.status = NE_NOT_CLOSE_FILE;
}

} // namespace

void write_to_sink(KorMesgSink &sink, const char *text, const char *ending)
{
    if (sink.status != 0) return;
    std::FILE *stream = stream_of(sink);
    if (stream == nullptr) return;
    std::fprintf(stream, "%s%s", text, ending);
    if (!is_standard(sink)) close_file(sink, stream);
}

} // namespace kor
