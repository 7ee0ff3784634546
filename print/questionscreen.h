// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/companion.h"

namespace print {

/// Asks once what snapshots are to be read from. Modal; closed without a button it chooses nothing.
class QuestionScreen : public ui::Companion {
    Q_OBJECT

public:
    QuestionScreen(const ui::Look& mainlook, QWidget* owner);

Q_SIGNALS:
    void cmdguitar_Click();
    void cmdpiano_Click();
};

} // namespace print
