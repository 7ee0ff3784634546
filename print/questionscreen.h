// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QDialog>

namespace print {

/// Asks once what snapshots are to be read from. Modal; closed without a button it chooses nothing.
class QuestionScreen : public QDialog {
    Q_OBJECT

public:
    QuestionScreen(const ui::Look& look, QWidget* owner);

Q_SIGNALS:
    void cmdguitar_Click();
    void cmdpiano_Click();
};

} // namespace print
