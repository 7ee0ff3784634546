// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/namebox.h"

#include "custom/editform.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QValidator>

namespace custom {
namespace {

/// Keeps a name to the characters that can be typed. The box's own limit would count halves of those beyond 16 bits.
class NameLength : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& position) const override
    {
        qsizetype end = 0;
        for (std::size_t count = 0; count < typedlength && end < input.size(); ++count)
            end += input.at(end).isHighSurrogate() && end + 1 < input.size() ? 2 : 1;
        input.truncate(end);
        position = qMin(position, static_cast<int>(end));
        return Acceptable;
    }
};

bool changestext(const QKeyEvent& key)
{
    return (!key.text().isEmpty() && key.text().front().isPrint()) || key.key() == Qt::Key_Backspace ||
           key.key() == Qt::Key_Delete || key.matches(QKeySequence::Paste) || key.matches(QKeySequence::Cut);
}

} // namespace

NameBox::NameBox(QWidget* parent) : QLineEdit(parent)
{
    setValidator(new NameLength(this));
}

void NameBox::display(const QString& name, bool guarded)
{
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
