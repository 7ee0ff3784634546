// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/mainscreen/model.h"
#include "tests/support/started.h"

#include <random>
#include <string>

namespace tests {

/// A person who clicks at random, the same for the same seed: on a session and on the model beside it.
class Walk {
public:
    explicit Walk(unsigned seed);

    /// One act on both. The text names it and the number that it bears: "key_Click 4".
    std::string step();

    Started s;
    Model model;

private:
    unsigned below(unsigned n) { return static_cast<unsigned>(random() % n); }

    std::mt19937 random;
};

} // namespace tests
