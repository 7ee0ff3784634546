// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/camerascreen.h"

#include "print/camerapicture.h"
#include "ui/button.h"
#include "ui/text.h"

#include <QGridLayout>

namespace print {

CameraScreen::CameraScreen(const ui::Look& shown, QWidget* owner)
    : QDialog(owner),
      look(shown),
      lbltaken(addlabel("lbltaken", ui::Type::strong)),
      lbllast(addlabel("lbllast", ui::Type::text)),
      lbltype(addlabel("lbltype", ui::Type::heading)),
      lblleft(addlabel("lblleft", ui::Type::text))
{
    setObjectName(QStringLiteral("ccamera"));
    setWindowTitle(QStringLiteral("Chord Camera - vexlor 2000"));
    setPalette(look.palettefor(look.theme().surface));
    auto* grid = new QGridLayout(this);
    const int room = qRound(16 * look.zoom());
    grid->setContentsMargins(room, room, room, room);
    grid->setSpacing(qRound(8 * look.zoom()));
    grid->addWidget(new CameraPicture(look, this), 0, 0, 1, 3, Qt::AlignCenter);
    for (int row = 1; QLabel * label : {lbltype, lbltaken, lbllast, lblleft})
        grid->addWidget(label, row++, 0, 1, 3);
    grid->setRowMinimumHeight(5, room / 2);
    grid->addWidget(addbutton("cmdret", "Okay! More to do", &CameraScreen::cmdret_Click), 6, 0);
    grid->addWidget(addbutton("cmdview", "Done! Lets View", &CameraScreen::cmdview_Click), 6, 1);
    grid->addWidget(addbutton("cmdclear", "Clear / Reset", &CameraScreen::cmdclear_Click), 6, 2);
}

QLabel* CameraScreen::addlabel(const char* name, ui::Type type)
{
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setFont(look.font(type));
    return label;
}

QWidget* CameraScreen::addbutton(const char* name, const char* caption, void (CameraScreen::*told)())
{
    auto* button = new ui::Button(look, QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    connect(button, &QAbstractButton::clicked, this, told);
    return button;
}

void CameraScreen::display(const CameraLabels& labels)
{
    lbltaken->setText(ui::totext(labels.lbltaken));
    lbllast->setText(ui::totext(labels.lbllast));
    lbltype->setText(ui::totext(labels.lbltype));
    lblleft->setText(ui::totext(labels.lblleft));
}

} // namespace print
