// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/printdialog.h"

#include <QLabel>
#include <QVBoxLayout>

namespace print {
namespace {

// The arrows' tips are those of the print page's, one of them with its slip of the pen; they are kept so.
// clang-format off
constexpr NumberRow toprow{"Top Margin (number of lines)", "topmargin", "top margin", "txttop", "cmdtopdown", "less characters per line",
                           "cmdtopup", "more characters per line", 190};
constexpr NumberRow leftrow{"Left Margin (character spaces)", "leftmargin", "left margin", "txtleft", "cmdleftdown", "less sp[acing between chords",
                            "cmdleftup", "more spacing between chords", 190};
// clang-format on

} // namespace

PrintDialog::PrintDialog(const ui::Look& shown, QWidget* owner)
    : QDialog(owner), top(new NumberBox(shown, toprow, this)), left(new NumberBox(shown, leftrow, this)), look(shown)
{
    setObjectName(QStringLiteral("printdialog"));
    setWindowTitle(QStringLiteral("tonefret print dialog box"));
    setWindowModality(Qt::ApplicationModal);
    setPalette(look.palettefor(look.theme().surface));
    auto* column = new QVBoxLayout(this);
    const int room = qRound(16 * look.zoom());
    column->setContentsMargins(room, room, room, room);
    column->setSpacing(qRound(8 * look.zoom()));
    column->addWidget(addlabel("settings", "Settings:", ui::Type::heading));
    column->addWidget(top);
    column->addWidget(left);
    column->addSpacing(room / 2);
    column->addWidget(addlabel("notes", "Notes:", ui::Type::heading));
    column->addWidget(addlabel("defaultprinter", "Prints to your default printer", ui::Type::text));
    column->addWidget(addlabel("portrait", "Prints in \"Portait\" (long) style only", ui::Type::text));
    column->addSpacing(room / 2);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    auto* print = addbutton("cmdprint", "PRINT", &PrintDialog::cmdprint_Click);
    print->setDefault(true);
    buttons->addWidget(print);
    buttons->addWidget(addbutton("cmdcancel", "CANCEL", &PrintDialog::cmdcancel_Click));
    column->addLayout(buttons);
}

QWidget* PrintDialog::addlabel(const char* name, const char* text, ui::Type type)
{
    auto* label = new QLabel(QString::fromLatin1(text), this);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(look.font(type));
    return label;
}

QPushButton* PrintDialog::addbutton(const char* name, const char* caption, void (PrintDialog::*told)())
{
    auto* button = new ui::Button(look, QString::fromLatin1(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    connect(button, &QAbstractButton::clicked, this, told);
    return button;
}

void PrintDialog::display(const MarginBoxes& boxes) const
{
    top->display(boxes.txttop);
    left->display(boxes.txtleft);
}

} // namespace print
