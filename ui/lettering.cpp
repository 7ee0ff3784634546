// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/lettering.h"

#include <QTextOption>

#include <memory>
#include <string_view>

namespace ui {

using namespace std::string_view_literals;

const QStaticText& Lettering::line(const QString& text, const QFont& font)
{
    const Key key{text, font.pixelSize(), font.weight()};
    if (const QStaticText* found = kept.object(key))
        return *found;
    QString shown = text;
    for (const char16_t space : u"\n\r\t\u2028\u2029"sv)
        shown.replace(QChar(space), QLatin1Char(' '));
    auto made = std::make_unique<QStaticText>(shown);
    made->setTextFormat(Qt::PlainText);
    QTextOption oneline;
    oneline.setWrapMode(QTextOption::NoWrap);
    made->setTextOption(oneline);
    made->prepare({}, font);
    const QStaticText& line = *made;
    kept.insert(key, made.release());
    return line;
}

} // namespace ui
