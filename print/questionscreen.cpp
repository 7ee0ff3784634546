// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/questionscreen.h"

#include <QBoxLayout>

namespace print {
namespace {

constexpr const char* question = "Do you wish to print keyboard or Guitar / Stringed Instrument Chords?";
constexpr const char* explanation = "If you wish to change this selection later, please use the pull down menu "
                                    "\"Print Chords\" and then click on your new choice";
constexpr int textwidth = 330; // pixels at zoom 1

} // namespace

QuestionScreen::QuestionScreen(const ui::Look& mainlook, QWidget* owner) : Companion(mainlook, owner, Qt::Dialog)
{
    setObjectName(QStringLiteral("camquestion"));
    setWindowTitle(QStringLiteral("Keyboard or Stringed Instrument?"));
    setWindowModality(Qt::ApplicationModal);
    auto* column = new QVBoxLayout;
    column->addWidget(caption("Label1", question, ui::Type::strong, textwidth));
    column->addWidget(button("cmdguitar", "Guitar or Stringed Instrument", "", [this] { Q_EMIT cmdguitar_Click(); }));
    column->addWidget(button("cmdpiano", "Keyboard or Piano", "", [this] { Q_EMIT cmdpiano_Click(); }));
    column->addWidget(caption("Label2", explanation, ui::Type::text, textwidth));
    setcontent(column, 10);
}

} // namespace print
