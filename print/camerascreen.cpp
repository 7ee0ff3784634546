// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/camerascreen.h"

#include "print/camerapicture.h"
#include "ui/text.h"

#include <QBoxLayout>

namespace print {

CameraScreen::CameraScreen(const ui::Look& mainlook, QWidget* owner) : Companion(mainlook, owner, Qt::Dialog)
{
    setObjectName(QStringLiteral("ccamera"));
    setWindowTitle(QStringLiteral("Chord Camera - vexlor 2000"));
    auto* column = new QVBoxLayout;
    column->addWidget(new CameraPicture(*this), 0, Qt::AlignCenter);
    column->addWidget(card(addlabels()));
    column->addLayout(addbuttons());
    setcontent(column, 12);
}

QLayout* CameraScreen::addlabels()
{
    auto* column = new QVBoxLayout;
    for (QLabel* label : {lbltype, lbltaken, lbllast, lblleft})
        column->addWidget(label);
    return column;
}

QLayout* CameraScreen::addbuttons()
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, gap);
    row->addWidget(button("cmdret", "Okay! More to do", "", [this] { Q_EMIT cmdret_Click(); }), 1);
    row->addWidget(button("cmdview", "Done! Lets View", "", [this] { Q_EMIT cmdview_Click(); }), 1);
    row->addWidget(button("cmdclear", "Clear / Reset", "", [this] { Q_EMIT cmdclear_Click(); }), 1);
    return row;
}

void CameraScreen::display(const CameraLabels& labels)
{
    const std::pair<QLabel*, const std::string&> rows[] = {
        {lbltaken, labels.lbltaken}, {lbllast, labels.lbllast}, {lbltype, labels.lbltype}, {lblleft, labels.lblleft}};
    bool changed = false;
    for (const auto& [label, text] : rows) {
        changed = changed || label->text() != ui::totext(text);
        label->setText(ui::totext(text));
    }
    if (changed)
        followlook();
}

} // namespace print
