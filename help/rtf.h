// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace help {

/// How a stretch of text looks.
struct RunFormat {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool fixed = false;                    ///< in a typewriter's type
    int size = 24;                         ///< half-points, 2 to 400
    std::optional<std::uint32_t> colour{}; ///< 0xRRGGBB; none: the reader's own

    bool operator==(const RunFormat&) const = default;
};

/// A stretch of text of one look, in UTF-8. U+2028 ends a line within the paragraph.
struct Run {
    std::string text;
    RunFormat format;

    bool operator==(const Run&) const = default;
};

enum class Alignment : std::uint8_t { left, centre, right, justified };

/// How a paragraph stands. Lengths are twips, held to 22 inches.
struct ParagraphFormat {
    Alignment alignment = Alignment::left;
    int left = 0;
    int right = 0;
    int first = 0; ///< of the first line, from the left indent; negative: it hangs out
    int before = 0;
    int after = 0;
    std::vector<int> tabs; ///< from the left margin, as written; at most 32
    bool intable = false;

    bool operator==(const ParagraphFormat&) const = default;
};

/// A place in a table: rows that have cells are counted through the whole document, columns from 0 to 31.
struct TablePlace {
    int row;
    int column;

    bool operator==(const TablePlace&) const = default;
};

struct Paragraph {
    ParagraphFormat format;
    std::vector<Run> runs;          ///< none: an empty paragraph
    std::optional<TablePlace> cell; ///< paragraphs that follow each other in cells make a table

    std::string text() const;
};

/// Reads an RTF document: its paragraphs in order, at most 100,000.
/// Bullets and list numbers are the text that the document gives for them. Pictures, headers, notes, style sheets and
/// destinations that are not known are left out. What a cell of a table within a cell holds stands in the outer cell, a
/// paragraph of its own. A damaged document gives what can be read of it; a text that does not
/// begin as RTF gives nothing. Takes time and memory in proportion to the text, however its groups are nested.
std::vector<Paragraph> readrtf(std::string_view text);

} // namespace help
