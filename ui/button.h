// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/paint.h"

#include <QPushButton>

namespace ui {

/// A push button in the program's look. It takes the keyboard by Tab only, so a click leaves no ring.
class Button : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QColor backColor READ backColor)

public:
    enum class Shape : std::uint8_t { box, pill };

    Button(const Look& shownlook, const QString& caption, QWidget* parent, Shape drawn = Shape::box);
    /// With an arrow in place of a caption.
    Button(const Look& shownlook, Qt::ArrowType pointing, QWidget* parent);

    /// Filled, as what is chosen or in force at the moment.
    void setchosen(bool chosen);
    bool ischosen() const { return chosenface; }

    /// A face of the program's own colour; none until it is set.
    void setbackColor(const QColor& colour);
    QColor backColor() const { return back; }

    /// Heavier type, readable as `font().bold()` too.
    void setbold(bool bold);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Button(const Look& shownlook, const QString& caption, QWidget* parent, Shape drawn, Qt::ArrowType pointing);

    QString caption() const; ///< the text without the mark of its key
    QColor face() const;
    QColor ink() const;

    const Look& look;
    Shape shape;
    Qt::ArrowType arrow;
    bool chosenface = false;
    QColor back;
    FocusRing ring;
};

} // namespace ui
