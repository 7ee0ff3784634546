// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "help/rtf.h"
#include "ui/look.h"

#include <QTextDocument>

namespace help {

/// Fills an empty text document with paragraphs as they were read. Its plain text has their texts in order, one to a
/// line; a table's cells follow each other row by row.
void filldocument(QTextDocument& document, const std::vector<Paragraph>& paragraphs, const ui::Look& look);

} // namespace help
