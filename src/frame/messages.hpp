// The texts that the chapters print: one catalogue a chapter, entries named by their index.
#pragma once

#include <kor/p01.h>

namespace kor {

#define KOR_MESSAGE(key, format) key,
#define KOR_MESSAGE_WHOLE(key, text) key,
enum E04Message : Integer {
#include "frame/messages/e04.def"
    kE04MessageCount
};
enum G02Message : Integer {
#include "frame/messages/g02.def"
    kG02MessageCount
};
enum G03Message : Integer {
#include "frame/messages/g03.def"
    kG03MessageCount
};
enum G12Message : Integer {
#include "frame/messages/g12.def"
    kG12MessageCount
};
enum G13Message : Integer {
#include "frame/messages/g13.def"
    kG13MessageCount
};
enum H02Message : Integer {
#include "frame/messages/h02.def"
    kH02MessageCount
};
#undef KOR_MESSAGE
#undef KOR_MESSAGE_WHOLE

} // namespace kor
