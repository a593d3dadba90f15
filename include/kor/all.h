/// \file all.h
/// Every chapter of the library.
#ifndef KOR_ALL_H
#define KOR_ALL_H

#include <kor/c02.h>
#include <kor/c05.h>
#include <kor/f06.h>
#include <kor/f07.h>
#include <kor/m01.h>
#include <kor/p01.h>
#include <kor/x02.h>
#include <kor/x04.h>

#endif
