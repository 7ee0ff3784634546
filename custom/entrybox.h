// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/paint.h"

#include <QWidget>

namespace custom {

/// A name on the arrange screen, to be dragged with the pointer onto another and to be dropped upon.
/// By keyboard: Space or Enter picks it up or drops on it, Escape puts back.
class EntryBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text)

public:
    EntryBox(const ui::Look& shownlook, int place, QWidget* parent);

    QString text() const { return name; }
    /// Shows a name, or nothing at all for an empty one.
    void display(const QString& shownname, bool pickedup);

Q_SIGNALS:
    void dropped(int source); ///< box `source` was dropped here, perhaps this one itself
    void chosen();            ///< Space or Enter

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drag(const QPoint& grip);
    void setaimed(bool target);

    const ui::Look& look;
    int index;
    QString name;
    bool held = false;  ///< picked up by keyboard
    bool armed = false; ///< the left button went down here and has not come up
    bool aimed = false; ///< a dragged box is over this one
    ui::FocusRing ring;
};

} // namespace custom
