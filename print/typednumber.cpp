// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/typednumber.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace print {
namespace {

constexpr bool isdigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Takes the digits that a text begins with, onto the value of those before them. Returns how many there were.
int takedigits(std::string_view& text, double& value)
{
    int count = 0;
    for (; !text.empty() && isdigit(text.front()); text.remove_prefix(1), ++count)
        value = 10 * value + (text.front() - '0');
    return count;
}

} // namespace

double typednumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    double value = 0;
    takedigits(text, value);
    if (std::isfinite(value) && text.starts_with('.')) {
        text.remove_prefix(1);
        constexpr std::size_t enough = 15; // digits behind the point; more change nothing
        text = text.substr(0, enough);
        const int places = takedigits(text, value);
        value /= std::pow(10.0, places);
    }
    return negative ? -value : value;
}

int wholenumber(std::string_view text)
{
    const double whole = std::nearbyint(typednumber(text));
    constexpr double most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(whole, -most, most));
}

} // namespace print
