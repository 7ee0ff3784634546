// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

namespace ui {

/// Makes many controls one stop of the Tab key, within which arrow keys, Home and End move.
class RovingFocus : public QObject {
    Q_OBJECT

public:
    /// The member to which `key` leads from member `from`; `from` itself where it leads nowhere.
    using Path = std::function<int(int from, Qt::Key key)>;

    RovingFocus(Path leading, QObject* parent);

    /// Members are numbered in the order in which they are added; the first takes the stop.
    void add(QWidget* member);

    /// Puts the stop on the first visible member where the member that has it is hidden.
    void leavehidden();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void stopat(int member);

    Path path;
    std::vector<QWidget*> members;
    int stop = 0;
};

} // namespace ui
