// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/page.h"
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
    void edited(const Edit& edit); ///< by typing

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void tell(int position, int added);
    Edit takewhole();
    Edit takepart(int position, int added);
    int units() const;

    const ui::Look& look;
    std::string shown;
    int shownunits = 0;   ///< of the toolkit, in the text that is shown
    bool unitsfit = true; ///< as many stand in `shown` as in the toolkit's document
    int width = 0;        ///< characters
    int shownpoints = 0;  ///< 0: none set yet
};

} // namespace print
