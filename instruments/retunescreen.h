// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/companion.h"

namespace instruments {

/// Asks for the note to which a string is to be tuned by hand. Modal.
class RetuneScreen : public ui::Companion {
    Q_OBJECT

public:
    RetuneScreen(const ui::Look& mainlook, QWidget* owner);

    /// Names the string in question by the note that it is tuned to.
    void display(const QString& opennote) const;

Q_SIGNALS:
    void cmdret_Click(int index); ///< 0 "no retune", 1 to 12 for C to B

private:
    QLayout* addnotes();
    QWidget* notebutton(int index);

    QLabel* heading;
};

} // namespace instruments
