#!/bin/sh
# Accuracy sweeps of the special functions against Arb: builds tools/special/sweep_<family>.cpp over the archive of a
# release build and runs it. Needs libflint-arb-dev.
#   tools/special/sweep.sh elementary [-n points] [-l ulps to list] [routine prefix ...]
set -e
root=$(cd "$(dirname "$0")/../.." && pwd)
family=$1
shift
build=${KOR_BUILD:-$root/build/release}
cmake --build "$build" --target korc_internal > /dev/null
program=$build/sweep_$family
${CXX:-g++} -std=c++20 -O2 -ffp-contract=off -I"$root/src" -I"$root/include" "$root/tools/special/sweep_$family.cpp" \
    "$build/libkorc_internal.a" -o "$program" $(pkg-config --libs openblas 2>/dev/null || echo -llapack -lblas) \
    -lgsl -lgslcblas -lflint-arb -lflint
exec "$program" "$@"
