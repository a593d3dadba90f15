#include "support/allocation.hpp"

#include <cstddef>

extern "C" {
void *__real_malloc(std::size_t);
void *__real_realloc(void *, std::size_t);
void __real_free(void *);
}

namespace {

thread_local bool watching = false;
thread_local long failing = 0;
thread_local long count = 0;
thread_local long living = 0;

bool must_fail() { return watching && ++count == failing; }

} // namespace

extern "C" {

void *__wrap_malloc(std::size_t size)
{
    if (must_fail()) return nullptr;
    void *block = __real_malloc(size);
    if (watching && block != nullptr) ++living;
    return block;
}

void *__wrap_realloc(void *old, std::size_t size)
{
    if (must_fail()) return nullptr;
    void *block = __real_realloc(old, size);
    if (watching && block != nullptr && old == nullptr) ++living;
    return block;
}

void __wrap_free(void *block)
{
    if (watching && block != nullptr) --living;
    __real_free(block);
}
}

namespace kor::testing {

AllocationWatch::AllocationWatch(long which)
{
    failing = which;
    count = 0;
    living = 0;
    watching = true;
}

AllocationWatch::~AllocationWatch() { watching = false; }

long AllocationWatch::allocations() { return count; }

long AllocationWatch::live() { return living; }

} // namespace kor::testing
