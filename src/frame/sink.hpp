// Where a chapter prints, and how: results and monitoring go through a sink, line by line.
#pragma once

#include <cstddef>

#include <kor.h>

namespace kor {

inline constexpr std::size_t kSinkNameSize = 512;

// The place that a chapter prints to, and the state of the printing. Two threads must not share one: `status` is plain.
struct KorMesgSink {
    Boolean opened;              // a first use has looked at the name
    Boolean is_stdout;           // the name was "stdout"
    Boolean is_stderr;           // the name was "stderr"
    char outfile[kSinkNameSize]; // a file name, "stdout" or "stderr"; null-terminated
    const char *chapter;         // "E04", "G13", "G02", "G03" or "H02": which catalogue x04baz reads
    Integer status;              // 0, or the first failure: NE_NOT_APPEND_FILE, NE_NOT_CLOSE_FILE, NE_WRITE_ERROR
};

// Each writer does nothing once the sink has failed. A file is opened for appending and closed around each text, so that
// nothing stays open and nothing is lost between two of them.
void x04bav(KorMesgSink *sink, const char *text); // a line: the text and a newline
void x04baw(KorMesgSink *sink, const char *text); // the text as it stands

// A text of the chapter's catalogue: `message` if the caller has filled in the entry, else entry `index` itself. The file
// gets what stands behind the key, if `print_control` is null or one of its print flags is set; its print hook, if there
// is one, gets the whole text, whatever the flags say.
void x04baz(KorMesgSink *sink, const char *message, Integer index, KorComm *print_control);

} // namespace kor
