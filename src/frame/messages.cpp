// The tables of the texts that the chapters print.
#include "frame/messages.hpp"

#define KOR_MESSAGE(key, format) #key ": " format,
#define KOR_MESSAGE_WHOLE(key, text) text,

extern "C" {

const char *const kor_e04mesg[] = {
#include "frame/messages/e04.def"
    ""};

const char *const kor_g02mesg[] = {
#include "frame/messages/g02.def"
    ""};

const char *const kor_g03mesg[] = {
#include "frame/messages/g03.def"
    ""};

const char *const kor_g12mesg[] = {
#include "frame/messages/g12.def"
    ""};

const char *const kor_g13mesg[] = {
#include "frame/messages/g13.def"
    ""};

const char *const kor_h02mesg[] = {
#include "frame/messages/h02.def"
    ""};
}
