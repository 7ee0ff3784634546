// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/namebox.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QValidator>

namespace custom {
namespace {

qsizetype lengthof(const QString& text)
{
    return text.toUcs4().size();
}

/// Keeps a name to the characters that can be typed: what does not fit behind them is not entered. The box's own limit
/// would count halves of the characters beyond 16 bits.
class NameLength : public QValidator {
public:
    NameLength(const qsizetype& most, QObject* owner) : QValidator(owner), limit(most) {}

    State validate(QString& input, int& position) const override
    {
        for (qsizetype excess = lengthof(input) - limit; excess > 0 && position > 0; --excess) {
            const int units = position > 1 && input.at(position - 1).isLowSurrogate() ? 2 : 1;
            position -= units;
            input.remove(position, units);
        }
        return Acceptable;
    }

private:
    const qsizetype& limit;
};

bool changestext(const QKeyEvent& key)
{
    return (!key.text().isEmpty() && key.text().front().isPrint()) || key.key() == Qt::Key_Backspace ||
           key.key() == Qt::Key_Delete || key.matches(QKeySequence::Paste) || key.matches(QKeySequence::Cut);
}

} // namespace

NameBox::NameBox(QWidget* parent) : QLineEdit(parent)
{
    setValidator(new NameLength(limit, this));
}

void NameBox::display(const QString& name, bool guarded)
{
    const QSignalBlocker untold(this);
    limit = qMax(static_cast<qsizetype>(typedlength), lengthof(name)); // a file may have longer ones
    if (text() != name)
        setText(name);
    setReadOnly(guarded);
}

void NameBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void NameBox::keyPressEvent(QKeyEvent* event)
{
    if (isReadOnly() && changestext(*event)) {
        Q_EMIT clicked();
        if (isReadOnly())
            return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace custom
