// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QPlainTextEdit>

#include <string>

namespace print {

/// The page as it is typed on: fixed pitch, no line broken, a rule where its characters per line end.
class Paper : public QPlainTextEdit {
    Q_OBJECT

public:
    Paper(const ui::Look& paperlook, QWidget* parent);

    /// Shows a text, without telling of it. What is added at its end leaves the rest and its view alone.
    void display(const std::string& text);
    void setpoints(int points);
    void setcharacters(int characters);

    /// Pixels that so many characters need, with all around them.
    int widthfor(int characters) const;

Q_SIGNALS:
    void edited(const std::string& text); ///< by typing

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void tell();

    const ui::Look& look;
    std::string shown;
    int width = 0;       ///< characters
    int shownpoints = 0; ///< 0: none set yet
};

} // namespace print
