// Lobatto's rules on an interval of unit length; printed by tools/boundary_weights.py.
#pragma once

namespace kor::ode {

inline constexpr int kMostNodes = 5, kMostInner = kMostNodes - 2;

struct LobattoRule {
    int nodes; // both ends are among them
    double node[kMostNodes];
    double weight[kMostNodes];
    // For each inner node: half the integral from 0 to it less half that from it to 1, of the polynomial through the slopes. Added
    // to the mean of the values at both ends it gives the value at the node.
    double from_mean[kMostInner][kMostNodes];
    constexpr int inner() const { return nodes - 2; }
};

inline constexpr LobattoRule kLobatto4 = {
    4,
    {0.0, 0.27639320225002103, 0.72360679774997897, 1.0},
    {0.083333333333333333, 0.41666666666666667, 0.41666666666666667, 0.083333333333333333},
    {{0.068633899812498247, -0.018633899812498247, -0.24224069756247722, -0.031366100187501753},
     {0.031366100187501753, 0.24224069756247722, 0.018633899812498247, -0.068633899812498247}}};
inline constexpr LobattoRule kLobatto5 = {
    5,
    {0.0, 0.17267316464601143, 0.5, 0.82732683535398857, 1.0},
    {0.05, 0.27222222222222222, 0.35555555555555556, 0.27222222222222222, 0.05},
    {{0.042728432186156898, -0.016366341767699429, -0.19951349964433589, -0.12547528688569562, -0.028700139242414531},
     {0.015625, 0.16707307221193167, 0.0, -0.16707307221193167, -0.015625},
     {0.028700139242414531, 0.12547528688569562, 0.19951349964433589, 0.016366341767699429, -0.042728432186156898}}};

} // namespace kor::ode
