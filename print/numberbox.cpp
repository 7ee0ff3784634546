// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/numberbox.h"

#include "ui/text.h"

#include <QHBoxLayout>
#include <QLabel>

namespace print {
namespace {

constexpr const char* boxtip = "use arrows to increase or decrease";
constexpr int boxwidth = 46; // pixels at zoom 1
constexpr int arrowwidth = 26;

ui::Button* arrow(const ui::Look& look, Qt::ArrowType pointing, const char* name, const char* tip,
                  const QString& spoken, QWidget* parent)
{
    auto* button = new ui::Button(look, pointing, parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromLatin1(tip));
    button->setAccessibleName(spoken);
    button->setAutoDefault(false);
    button->setFixedWidth(qRound(arrowwidth * look.zoom()));
    return button;
}

} // namespace

NumberBox::NumberBox(const ui::Look& look, const NumberRow& row, QWidget* parent)
    : QWidget(parent), box(new QLineEdit(this))
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(qRound(4 * look.zoom()));
    auto* caption = new QLabel(QString::fromLatin1(row.caption), this);
    caption->setObjectName(QString::fromLatin1(row.captionname));
    caption->setBuddy(box);
    caption->setFont(look.font(ui::Type::label));
    caption->setMinimumWidth(qRound(row.captionwidth * look.zoom()));
    box->setObjectName(QString::fromLatin1(row.box));
    box->setToolTip(QString::fromLatin1(boxtip));
    box->setAccessibleName(QString::fromLatin1(row.caption));
    box->setFont(look.font(ui::Type::text));
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(qRound(boxwidth * look.zoom()));
    auto* lower = arrow(look, Qt::LeftArrow, row.down, row.downtip,
                        QStringLiteral("lower the %1").arg(QLatin1String(row.spoken)), this);
    auto* higher = arrow(look, Qt::RightArrow, row.up, row.uptip,
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
