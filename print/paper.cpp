// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/paper.h"

#include "ui/text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace print {
namespace {

constexpr int tabcharacters = 8;

/// The toolkit's text with a line feed between its lines and every other character as it is.
std::string linesof(QString text)
{
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text.toStdString();
}

/// UTF-16 units of the character that a byte of UTF-8 begins: two beyond the basic plane, none inside of a character.
int unitsof(char byte)
{
    const auto number = static_cast<unsigned char>(byte);
    return static_cast<int>((number & 0xC0U) != 0x80U) + static_cast<int>(number >= 0xF0U);
}

int unitsof(std::string_view text)
{
    int units = 0;
    for (const char byte : text)
        units += unitsof(byte);
    return units;
}

/// Where the character begins that stands `units` UTF-16 units behind byte `from`.
std::size_t skipunits(std::string_view text, std::size_t from, int units)
{
    std::size_t at = from;
    for (; at < text.size() && units > 0; ++at)
        units -= unitsof(text[at]);
    while (at < text.size() && unitsof(text[at]) == 0)
        ++at;
    return at;
}

} // namespace

Paper::Paper(const ui::Look& paperlook, QWidget* parent) : QPlainTextEdit(parent), look(paperlook)
{
    setLineWrapMode(NoWrap);
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position, int /*removed*/, int added) { tell(position, added); });
}

int Paper::units() const
{
    return document()->characterCount() - 1; // the document counts an end of its last line
}

// The toolkit's own counts may take in the end of the last line; what went follows from the lengths instead.
void Paper::tell(int position, int added)
{
    if (signalsBlocked())
        return;
    const Edit edit = unitsfit ? takepart(position, std::min(added, units() - position)) : takewhole();
    shown.replace(edit.at, edit.removed, edit.added);
    shownunits = units();
    unitsfit = true;
    Q_EMIT edited(edit);
}

Edit Paper::takewhole()
{
    return {0, std::string::npos, linesof(document()->toRawText())};
}

Edit Paper::takepart(int position, int added)
{
    QTextCursor part(document());
    part.setPosition(position);
    part.setPosition(position + added, QTextCursor::KeepAnchor);
    const std::size_t at = skipunits(shown, 0, position);
    const std::size_t end = skipunits(shown, at, shownunits + added - units());
    return {at, end - at, linesof(part.selectedText())};
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
    shownunits = units();
    unitsfit = unitsof(std::string_view(shown)) == shownunits;
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
