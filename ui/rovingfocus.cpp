// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/rovingfocus.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace ui {
namespace {

constexpr std::array<int, 6> movingkeys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,
                                        Qt::Key_Down, Qt::Key_Home,  Qt::Key_End};

bool moves(const QKeyEvent& pressed)
{
    const Qt::KeyboardModifiers held = pressed.modifiers() & ~Qt::KeypadModifier;
    return held == Qt::NoModifier && std::ranges::find(movingkeys, pressed.key()) != movingkeys.end();
}

} // namespace

RovingFocus::RovingFocus(Path leading, QObject* parent) : QObject(parent), path(std::move(leading)) {}

void RovingFocus::add(QWidget* member)
{
    member->installEventFilter(this);
    members.push_back(member);
    member->setFocusPolicy(members.size() == 1 ? Qt::TabFocus : Qt::NoFocus);
}

void RovingFocus::stopat(int member)
{
    members.at(static_cast<std::size_t>(stop))->setFocusPolicy(Qt::NoFocus);
    stop = member;
    members.at(static_cast<std::size_t>(stop))->setFocusPolicy(Qt::TabFocus);
}

void RovingFocus::leavehidden()
{
    if (!members.at(static_cast<std::size_t>(stop))->isHidden())
        return;
    const auto shown = std::ranges::find_if(members, [](const QWidget* member) { return !member->isHidden(); });
    if (shown != members.end())
        stopat(static_cast<int>(shown - members.begin()));
}

bool RovingFocus::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto& pressed = static_cast<const QKeyEvent&>(*event);
    if (!moves(pressed))
        return QObject::eventFilter(watched, event);
    const auto from = std::ranges::find(members, watched);
    stopat(path(static_cast<int>(from - members.begin()), static_cast<Qt::Key>(pressed.key())));
    members.at(static_cast<std::size_t>(stop))->setFocus(Qt::ShortcutFocusReason);
    return true;
}

} // namespace ui
