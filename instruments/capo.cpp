// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "instruments/capo.h"

namespace instruments {

void CapoMarker::getcapo(int capo, Hand hand)
{
    barvisible = capo > 0;
    barleft = barvisible ? barpositions.at(static_cast<std::size_t>(capo) - 1)[hand] : barpositions.front().right;
    followervisible = barvisible;
    if (followervisible)
        followerleft = barleft + followerdistance;
}

} // namespace instruments
