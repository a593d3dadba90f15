# 32-bit Linux on Intel, by Debian's multiarch: g++-multilib, libopenblas-dev:i386, libgtest-dev:i386. Doubles live in SSE2
# registers, so that the arithmetic is that of 64 bits; long double has 80 bits on both.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)

set(CMAKE_C_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")

# Libraries and packages of the other architecture must not be found; tools, such as Python, may be.
set(CMAKE_SYSTEM_LIBRARY_PATH /usr/lib/i386-linux-gnu)
set(CMAKE_PREFIX_PATH /usr/lib/i386-linux-gnu)
set(CMAKE_IGNORE_PATH /usr/lib/x86_64-linux-gnu /lib/x86_64-linux-gnu)
set(CMAKE_IGNORE_PREFIX_PATH /usr/lib/x86_64-linux-gnu)
set(BLA_VENDOR OpenBLAS CACHE STRING "The BLAS of the other architecture")
