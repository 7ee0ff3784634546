// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/companion.h"

#include <QLineEdit>
#include <QWidget>

namespace print {

/// What stands around a number: a box that takes any text, and the arrows that lower and raise it.
struct NumberRow {
    const char* caption;
    const char* captionname;
    const char* spoken; ///< what the number is, for those who hear it: "top margin"
    const char* box;
    const char* down;
    const char* downtip;
    const char* up;
    const char* uptip;
    int captionwidth; ///< pixels at zoom 1; rows below one another have the same
};

/// A caption and a number between two arrows, in a line. The parts are found by the names of the row.
class NumberBox : public QWidget {
    Q_OBJECT

public:
    /// Made in the look of the screen, which is to place it.
    NumberBox(ui::Companion& screen, const NumberRow& row);

    /// Shows a text, without telling of it.
    void display(const std::string& text);

Q_SIGNALS:
    void changed(const QString& text); ///< by typing
    void down();
    void up();

private:
    QLineEdit* box;
};

} // namespace print
