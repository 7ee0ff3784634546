// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tests {

/// What a chord reads as.
struct Reading {
    int type = -1;    ///< -1: no type has these notes
    int root = 99;    ///< 99: none
    int other = 99;   ///< root of the alternate; 99: none
    std::string name; ///< "cant find" where no type fits
    std::string also; ///< " " where there is no alternate

    bool operator==(const Reading&) const = default;
};

/// Reads sorted, distinct notes 0..11 in spelling mode 0..3, by gaps between neighbours: the types that have so many
/// notes in their order, and of each type every rotation. Needs two notes or more.
Reading readbygaps(const std::vector<int>& notes, int mode);

/// Name of the ninth whose four upper notes these are, in the one position in which it is asked for; "" for neither.
std::string rootlessninth(const std::vector<int>& notes);

/// How a failure shows a reading.
std::ostream& operator<<(std::ostream& out, const Reading& reading);

} // namespace tests
