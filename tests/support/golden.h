// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tests {

/// The switch that writes the golden files anew: an environment variable. While it is set a test of its own fails, so
/// that no run with it passes for a check.
inline constexpr const char* goldenswitch = "TONEFRET_UPDATE_GOLDEN";

bool updatesgolden();

/// Compares a text byte by byte with the golden file of that name, or writes the file where the switch is on.
void expectgolden(const std::string& name, const std::string& text);

} // namespace tests
