// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/paint.h"

#include <QComboBox>
#include <QElapsedTimer>

namespace ui {

/// A drop-down list that cannot be typed into and can show a text that is none of its items.
/// Blanks around an item are its own, but not drawn.
class SelectorBox : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(QString currentText READ shownText)

public:
    SelectorBox(const Look& shownlook, QWidget* parent);

    void display(const QStringList& items, int index, const QString& text);
    QString shownText() const { return shown; }
    /// Whether the keyboard brought the focus here.
    bool usedbykeys() const { return ring.bykeys(); }
    void showPopup() override;
    /// Room for little more than the arrow: whoever places the box gives it its width. To measure every item would take
    /// longer than anything else when a screen opens.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// A person picked an item: from the opened list, by wheel or keys, or through assistive technology; once for each
    /// pick, and that of the shown item counts too.
    void picked(int item);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makelist();
    void tellofchange(int item);
    void tellofactivation(int item);
    int sought(const QString& typed, int current);

    const Look& look;
    QAbstractItemDelegate* trimmeditems = nullptr;
    QStringList listed;
    QString shown;
    int toldof = -1; ///< the item whose change was told of, until its activation comes or cannot come any more
    QString typedsofar;
    QElapsedTimer sincetyping;
    FocusRing ring;
};

} // namespace ui
