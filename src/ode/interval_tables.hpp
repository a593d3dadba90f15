// The Lobatto rule of five points on an interval of unit length; printed by tools/boundary_weights.py.
#pragma once

namespace kor::ode {

inline constexpr int kNodes = 5;
inline constexpr double kNode[kNodes] = {0.0, 0.17267316464601143, 0.5, 0.82732683535398857, 1.0};
inline constexpr double kRule[kNodes] = {0.05, 0.27222222222222222, 0.35555555555555556, 0.27222222222222222, 0.05};

// Half the integral from 0 to the node less half that from the node to 1, of the polynomial through the slopes: added to the mean
// of the values at both ends it gives the value at the node. The rows are those of the three inner nodes.
inline constexpr double kFromMean[kNodes - 2][kNodes] = {
    {0.042728432186156898, -0.016366341767699429, -0.19951349964433589, -0.12547528688569562, -0.028700139242414531},
    {0.015625, 0.16707307221193167, 0.0, -0.16707307221193167, -0.015625},
    {0.028700139242414531, 0.12547528688569562, 0.19951349964433589, 0.016366341767699429, -0.042728432186156898}};

} // namespace kor::ode
