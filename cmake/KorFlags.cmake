# The arithmetic is fixed here, once, for the whole library: IEEE double, no contraction, no fast-math. Neither errno nor
# the trapping of exceptions is part of any result, so the compiler may vectorise square roots and conditionals.
add_library(kor_flags INTERFACE)
target_compile_options(kor_flags INTERFACE
  -ffp-contract=off -fno-fast-math -fno-math-errno -fno-trapping-math
  -Wall -Wextra -Wno-psabi
  $<$<COMPILE_LANGUAGE:CXX>:-Wextra-semi>)
option(KOR_WERROR "Treat warnings as errors" OFF)
if(KOR_WERROR)
  target_compile_options(kor_flags INTERFACE -Werror)
endif()

set(CMAKE_C_FLAGS_RELEASE "-O2 -g1 -DNDEBUG")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -g1 -DNDEBUG -fvect-cost-model=dynamic")
set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g")

if(KOR_SANITIZE)
  # Line numbers are all that the reports need of the debug information, and the rest takes long to compile.
  add_compile_options(-fsanitize=${KOR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all -g1)
  add_link_options(-fsanitize=${KOR_SANITIZE})
  add_compile_definitions(KOR_SANITIZED=1)
endif()

# Every object carries the counters that guide the fuzz targets.
if(KOR_BUILD_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
  add_link_options(-fsanitize=fuzzer-no-link)
endif()
