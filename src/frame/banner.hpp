// What a00aac and a00abc write.
#pragma once

namespace kor {

inline constexpr const char *kBanner[] = {
    "*** KOR C Library Implementation ***\n",
    "     Linux (Intel)\n",
    "    Implementation code (QZTRM06WB)\n",
    "    Level 6\n",
};

} // namespace kor
