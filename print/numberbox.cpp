// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/numberbox.h"

#include "ui/text.h"

#include <QHBoxLayout>

namespace print {
namespace {

constexpr const char* boxtip = "use arrows to increase or decrease";
constexpr int boxwidth = 46; // pixels at zoom 1
constexpr int arrowwidth = 26;

ui::Button* arrow(ui::Companion& screen, Qt::ArrowType pointing, const char* name, const char* tip,
                  const QString& spoken, QWidget* parent)
{
    auto* button = new ui::Button(screen.shownlook(), pointing, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(tip));
    button->setAccessibleName(spoken);
    screen.fitsize(button, {arrowwidth, -1});
    return button;
}

} // namespace

NumberBox::NumberBox(ui::Companion& screen, const NumberRow& row) : QWidget(&screen), box(new QLineEdit(this))
{
    auto* line = new QHBoxLayout(this);
    screen.fitroom(line, 0, 4);
    auto* caption = screen.caption(row.captionname, row.caption, ui::Type::text);
    caption->setBuddy(box);
    screen.fit([&screen, caption, row] { caption->setMinimumWidth(screen.scaled(row.captionwidth)); });
    box->setObjectName(QString::fromLatin1(row.box));
    box->setToolTip(QString::fromLatin1(boxtip));
    box->setAccessibleName(QString::fromLatin1(row.caption));
    box->setAlignment(Qt::AlignRight);
    screen.fitbox(box);
    screen.fitsize(box, {boxwidth, -1});
    auto* lower = arrow(screen, Qt::LeftArrow, row.down, row.downtip,
                        QStringLiteral("lower the %1").arg(QLatin1String(row.spoken)), this);
    auto* higher = arrow(screen, Qt::RightArrow, row.up, row.uptip,
                         QStringLiteral("raise the %1").arg(QLatin1String(row.spoken)), this);
    for (QWidget* part : std::initializer_list<QWidget*>{caption, lower, box, higher})
        line->addWidget(part);
    line->addStretch();
    setTabOrder(lower, box);
    setTabOrder(box, higher);
    connect(box, &QLineEdit::textChanged, this, &NumberBox::changed);
    connect(lower, &QAbstractButton::clicked, this, &NumberBox::down);
    connect(higher, &QAbstractButton::clicked, this, &NumberBox::up);
}

void NumberBox::display(const std::string& text)
{
    const QString shown = ui::totext(text);
    if (box->text() == shown)
        return;
    const QSignalBlocker quiet(box);
    box->setText(shown);
}

} // namespace print
