// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/paper.h"

#include "ui/text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace print {
namespace {

constexpr int tabcharacters = 8;

/// The text with a line feed between its lines and every other character as it is.
std::string textof(const QTextDocument& document)
{
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text.toStdString();
}

} // namespace

Paper::Paper(const ui::Look& paperlook, QWidget* parent) : QPlainTextEdit(parent), look(paperlook)
{
    setLineWrapMode(NoWrap);
    setPalette(look.palettefor(look.theme().card));
    connect(this, &QPlainTextEdit::textChanged, this, &Paper::tell);
}

void Paper::tell()
{
    shown = textof(*document());
    Q_EMIT edited(shown);
}

void Paper::display(const std::string& text)
{
    if (text == shown)
        return;
    const QSignalBlocker quiet(this);
    if (!shown.empty() && text.starts_with(shown)) {
        QTextCursor end(document());
        end.movePosition(QTextCursor::End);
        end.insertText(ui::totext(std::string_view(text).substr(shown.size())));
    } else {
        setPlainText(ui::totext(text));
    }
    shown = text;
}

void Paper::setpoints(int points)
{
    if (points < 1 || points == shownpoints)
        return;
    shownpoints = points;
    QFont fixed(QStringLiteral("Courier New"), points);
    fixed.setStyleHint(QFont::TypeWriter);
    fixed.setFixedPitch(true);
    setFont(fixed);
    setTabStopDistance(tabcharacters * QFontMetricsF(fixed).horizontalAdvance(QLatin1Char('0')));
}

void Paper::setcharacters(int characters)
{
    if (width == characters)
        return;
    width = characters;
    viewport()->update();
}

int Paper::widthfor(int characters) const
{
    return qRound(characters * QFontMetricsF(font()).horizontalAdvance(QLatin1Char('0')) +
                  2 * document()->documentMargin() + 2 * frameWidth() + verticalScrollBar()->sizeHint().width());
}

void Paper::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    if (width <= 0)
        return;
    const double right = contentOffset().x() + document()->documentMargin() +
                         width * QFontMetricsF(font()).horizontalAdvance(QLatin1Char('0'));
    QPainter painter(viewport());
    painter.setPen(look.theme().hairline);
    painter.drawLine(QPointF(right, 0), QPointF(right, viewport()->height()));
}

} // namespace print
