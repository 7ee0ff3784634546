// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/look.h"

#include <QComboBox>

namespace ui {

/// A drop-down list that cannot be typed into and can show a text that is none of its items.
/// It tells of every pick by `activated`, that of the shown item too. Blanks around an item are its own, but not drawn.
class SelectorBox : public QComboBox {
    Q_OBJECT
    Q_PROPERTY(QString currentText READ shownText)

public:
    SelectorBox(const Look& shownlook, QWidget* parent);

    void display(const QStringList& items, int index, const QString& text);
    QString shownText() const { return shown; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showPopup() override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    const Look& look;
    QAbstractItemDelegate* trimmeditems = nullptr;
    QStringList listed;
    QString shown;
    bool ring = false; ///< the keyboard brought the focus here
};

} // namespace ui
