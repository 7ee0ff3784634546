// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace print {

/// The number that a typed text begins with, blanks before it skipped: a sign, digits, a decimal point and digits.
/// 0 where there is none. Too long a number is infinite.
double typednumber(std::string_view text);

/// The same as a whole number, a half to the even neighbour ("2.5" is 2), held to what an int holds.
int wholenumber(std::string_view text);

} // namespace print
