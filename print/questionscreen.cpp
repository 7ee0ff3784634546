// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/questionscreen.h"

#include "ui/button.h"

#include <QLabel>
#include <QVBoxLayout>

namespace print {
namespace {

constexpr const char* question = "Do you wish to print keyboard or Guitar / Stringed Instrument Chords?";
constexpr const char* explanation = "If you wish to change this selection later, please use the pull down menu "
                                    "\"Print Chords\" and then click on your new choice";
constexpr int textwidth = 330; // pixels at zoom 1

QLabel* textlabel(const char* name, const char* text, ui::Type type, const ui::Look& look, QWidget* parent)
{
    auto* label = new QLabel(QString::fromLatin1(text), parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(look.font(type));
    label->setWordWrap(true);
    label->setFixedWidth(qRound(textwidth * look.zoom()));
    return label;
}

} // namespace

QuestionScreen::QuestionScreen(const ui::Look& look, QWidget* owner) : QDialog(owner)
{
    setObjectName(QStringLiteral("camquestion"));
    setWindowTitle(QStringLiteral("Keyboard or Stringed Instrument?"));
    setWindowModality(Qt::ApplicationModal);
    setPalette(look.palettefor(look.theme().surface));
    auto* column = new QVBoxLayout(this);
    const int room = qRound(16 * look.zoom());
    column->setContentsMargins(room, room, room, room);
    column->setSpacing(qRound(8 * look.zoom()));
    column->addWidget(textlabel("Label1", question, ui::Type::strong, look, this));
    auto* guitar = new ui::Button(look, QStringLiteral("Guitar or Stringed Instrument"), this);
    auto* piano = new ui::Button(look, QStringLiteral("Keyboard or Piano"), this);
    guitar->setObjectName(QStringLiteral("cmdguitar"));
    piano->setObjectName(QStringLiteral("cmdpiano"));
    for (ui::Button* button : {guitar, piano}) {
        button->setAutoDefault(false);
        column->addWidget(button);
    }
    column->addWidget(textlabel("Label2", explanation, ui::Type::text, look, this));
    connect(guitar, &QAbstractButton::clicked, this, &QuestionScreen::cmdguitar_Click);
    connect(piano, &QAbstractButton::clicked, this, &QuestionScreen::cmdpiano_Click);
}

} // namespace print
