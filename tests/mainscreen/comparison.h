// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/mainscreen/model.h"
#include "tests/support/started.h"

#include <string>

namespace tests {

/// Everything in which a session and the model differ, a line each: "note 3: \"Eb\", model \"D#\"". Empty: nothing.
std::string differences(const Started& s, const Model& model);

} // namespace tests
