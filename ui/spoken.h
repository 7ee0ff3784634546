// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace ui {

/// What a person who hears the screen is told of at once: a notice that is read aloud whenever its words change. Nobody
/// sees it, and neither pointer nor keyboard reaches it.
class Spoken : public QWidget {
    Q_OBJECT

public:
    explicit Spoken(QWidget* parent);

    QString words() const { return said; }
    /// Says it if it is something new. An empty text takes back what was said.
    void say(const QString& words);

private:
    QString said;
};

} // namespace ui
