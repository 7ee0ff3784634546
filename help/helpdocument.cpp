// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/helpdocument.h"

#include "ui/text.h"

#include <QFontDatabase>
#include <QTextCursor>
#include <QTextTable>

#include <algorithm>
#include <map>
#include <span>
#include <tuple>

namespace help {
namespace {

constexpr double pixelsperhalfpoint = 0.58; ///< at zoom 1: a little smaller than on paper, like the other screens

constexpr int mostcells = 20'000; ///< a larger table is shown as paragraphs

TablePlace placeof(const Paragraph& p)
{
    return p.cell.value_or(TablePlace{0, 0});
}

int columnof(const Paragraph& p)
{
    return placeof(p).column;
}

using FormatKey = std::tuple<bool, bool, bool, bool, int, std::optional<std::uint32_t>>;

FormatKey keyof(const RunFormat& format)
{
    return {format.bold, format.italic, format.underline, format.fixed, format.size, format.colour};
}

class Writer {
public:
    Writer(QTextDocument& document, const ui::Look& shown) : cursor(&document), look(shown) {}

    void paragraph(const Paragraph& p);
    void table(std::span<const Paragraph> cells);

private:
    QTextTableFormat tableformat() const;
    QTextBlockFormat blockformat(const ParagraphFormat& format) const;
    const QTextCharFormat& charformat(const RunFormat& format);
    QTextCharFormat newcharformat(const RunFormat& format) const;
    QColor readable(std::uint32_t colour) const;
    void runs(QTextCursor& at, const Paragraph& p);

    QTextCursor cursor;
    std::map<FormatKey, QTextCharFormat> charformats; ///< each made once: a document has few
    const ui::Look& look;
    bool fresh = true; ///< the block at the cursor is empty and to be used
};

void Writer::paragraph(const Paragraph& p)
{
    if (!fresh)
        cursor.insertBlock();
    fresh = false;
    runs(cursor, p);
}

void Writer::runs(QTextCursor& at, const Paragraph& p)
{
    at.setBlockFormat(blockformat(p.format));
    at.setBlockCharFormat(p.runs.empty() ? QTextCharFormat() : charformat(p.runs.front().format));
    for (const Run& run : p.runs)
        at.insertText(ui::totext(run.text), charformat(run.format));
}

void Writer::table(std::span<const Paragraph> cells)
{
    const int firstrow = placeof(cells.front()).row;
    const int rows = placeof(cells.back()).row - firstrow + 1;
    const int columns = placeof(std::ranges::max(cells, {}, columnof)).column + 1;
    if (rows > mostcells / columns) {
        std::ranges::for_each(cells, [this](const Paragraph& p) { paragraph(p); });
        return;
    }
    if (!fresh)
        cursor.insertBlock({}, {});
    const QTextTable* made = cursor.insertTable(rows, columns, tableformat());
    for (const Paragraph& p : cells) {
        const QTextTableCell cell = made->cellAt(placeof(p).row - firstrow, columnof(p));
        QTextCursor within = cell.lastCursorPosition();
        if (within != cell.firstCursorPosition())
            within.insertBlock();
        runs(within, p);
    }
    cursor.movePosition(QTextCursor::End);
    fresh = true;
}

QTextTableFormat Writer::tableformat() const
{
    QTextTableFormat format;
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(look.theme().hairline);
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setCellPadding(4 * look.zoom());
    return format;
}

QTextBlockFormat Writer::blockformat(const ParagraphFormat& format) const
{
    constexpr std::array alignments{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};
    QTextBlockFormat block;
    block.setAlignment(alignments.at(static_cast<std::size_t>(format.alignment)));
    block.setLeftMargin(look.pixels(format.left));
    block.setRightMargin(look.pixels(format.right));
    block.setTextIndent(look.pixels(format.first));
    block.setTopMargin(look.pixels(format.before));
    block.setBottomMargin(look.pixels(format.after));
    QList<QTextOption::Tab> tabs;
    for (const int tab : format.tabs)
        tabs.append(QTextOption::Tab(look.pixels(tab), QTextOption::LeftTab));
    block.setTabPositions(tabs);
    return block;
}

const QTextCharFormat& Writer::charformat(const RunFormat& format)
{
    const auto [made, isnew] = charformats.try_emplace(keyof(format));
    if (isnew)
        made->second = newcharformat(format);
    return made->second;
}

QTextCharFormat Writer::newcharformat(const RunFormat& format) const
{
    QFont font = format.fixed ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : look.font(ui::Type::text);
    font.setPixelSize(std::max(1, qRound(format.size * pixelsperhalfpoint * look.zoom())));
    font.setWeight(format.bold ? QFont::DemiBold : QFont::Normal);
    font.setItalic(format.italic);
    font.setUnderline(format.underline);
    QTextCharFormat characters;
    characters.setFont(font);
    if (format.colour)
        characters.setForeground(readable(*format.colour));
    return characters;
}

/// Documents are coloured for white paper: on a dark ground a dark colour becomes a light one of the same hue.
QColor Writer::readable(std::uint32_t colour) const
{
    const QColor given = QColor::fromRgb(colour);
    const bool darkground = look.theme().card.lightness() < look.theme().text.lightness();
    constexpr int middle = 128;
    if (!darkground || given.lightness() >= middle)
        return given;
    return QColor::fromHsl(given.hslHue(), given.hslSaturation(), 2 * middle - given.lightness() - 1);
}

} // namespace

void filldocument(QTextDocument& document, const std::vector<Paragraph>& paragraphs, const ui::Look& look)
{
    QTextCursor whole(&document);
    whole.beginEditBlock(); // laid out once, at the end
    Writer writer(document, look);
    auto at = paragraphs.begin();
    while (at != paragraphs.end()) {
        const auto tableend = std::find_if(at, paragraphs.end(), [](const Paragraph& p) { return !p.cell; });
        if (tableend == at)
            writer.paragraph(*at++);
        else
            writer.table({at, tableend});
        at = std::max(at, tableend);
    }
    whole.endEditBlock();
}

} // namespace help
