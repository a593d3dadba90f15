#ifndef KOR_S22_H
#define KOR_S22_H
#include <kor.h>
KOR_BEGIN_DECLS
void s22aac(Integer mode, double x, Integer m, Integer nl, double p[], KorError *fail);
KOR_END_DECLS
#endif
