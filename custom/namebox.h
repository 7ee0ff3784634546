// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "custom/editform.h"

#include <QLineEdit>

namespace custom {

/// The box of an entry's name. While the entry is guarded nothing can be typed: a click, and a key that would change
/// the name, tell of the wish first, and the key acts if the guard was lifted.
class NameBox : public QLineEdit {
    Q_OBJECT

public:
    explicit NameBox(QWidget* parent);

    void display(const QString& name, bool guarded);

Q_SIGNALS:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    qsizetype limit = typedlength; ///< characters of the name, at most
};

} // namespace custom
