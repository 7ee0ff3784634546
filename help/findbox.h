// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace help {

/// A box that takes the characters 13 and 10 for Enter too, however they are typed: Ctrl+M and Ctrl+J among them. They
/// are told by returnPressed(), as Return and the keypad's Enter are.
class FindBox : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace help
