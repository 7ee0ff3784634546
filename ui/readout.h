// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QWidget>

namespace ui {

/// A text that the program shows and nobody types into.
class Readout : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text)

public:
    enum class Frame : std::uint8_t {
        none, ///< a caption: text alone
        box,
        root, ///< a box filled with the accent while it shows a note
    };

    Readout(const Look& shownlook, Type written, Frame drawn, Qt::Alignment placed, QWidget* parent);

    QString text() const { return shown; }
    void settext(const QString& text);
    /// How it is read aloud: a caption by its accessible name or its text, any other as "Chord: major", or by its text
    /// alone where it has no accessible name.
    QString spokenname() const;
    /// Has every text in the size in which `text` fits, so that neighbours are of one size.
    void fit(const QString& text) { widest = text; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& look;
    Type type;
    Frame frame;
    Qt::Alignment alignment;
    QString shown;
    QString widest;
};

} // namespace ui
