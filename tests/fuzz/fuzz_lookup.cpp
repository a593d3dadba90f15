// Fuzz target: the reporter, and the look-up of error codes and enumerators by name. Any text goes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include <kor/p01.h>
#include <kor/x04.h>

namespace {

void require(bool condition)
{
    if (!condition) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Integer code = 0;
    const std::size_t head = size < sizeof code ? size : sizeof code;
    std::memcpy(&code, data, head);
    const std::string text(reinterpret_cast<const char *>(data) + head, size - head);

    const Integer enumerator = x04mac(text.c_str());
    require(enumerator == -5438 || (enumerator > KOR_ENUMERATOR_NONE && enumerator < KOR_ENUMERATOR_END));
    const Integer key = x04mbc(text.c_str());
    require(key == -5438 || (key >= 0 && key < KOR_ERROR_COUNT));

    KorError fail{};
    p01acc(text.c_str(), code, "fuzz", &fail);
    require(fail.code == code);
    const std::size_t kept = strnlen(fail.message, sizeof fail.message);
    require(kept < sizeof fail.message && std::strncmp(fail.message, text.c_str(), kept) == 0);

    p01acc(nullptr, code, "fuzz", &fail);
    require(strnlen(fail.message, sizeof fail.message) < sizeof fail.message);
    return 0;
}
