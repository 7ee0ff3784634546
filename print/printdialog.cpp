// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/printdialog.h"

#include <QBoxLayout>

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

PrintDialog::PrintDialog(const ui::Look& mainlook, QWidget* owner)
    : Companion(mainlook, owner, Qt::Dialog), top(new NumberBox(*this, toprow)), left(new NumberBox(*this, leftrow))
{
    setObjectName(QStringLiteral("printdialog"));
    setWindowTitle(QStringLiteral("tonefret print dialog box"));
    setWindowModality(Qt::ApplicationModal);
    auto* column = new QVBoxLayout;
    column->addWidget(card(addsettings()));
    column->addWidget(card(addnotes()));
    column->addLayout(addbuttons());
    setcontent(column, 12);
}

QLayout* PrintDialog::addsettings()
{
    auto* column = new QVBoxLayout;
    column->addWidget(caption("settings", "Settings:", ui::Type::heading));
    column->addWidget(top);
    column->addWidget(left);
    return column;
}

QLayout* PrintDialog::addnotes()
{
    auto* column = new QVBoxLayout;
    column->addWidget(caption("notes", "Notes:", ui::Type::heading));
    column->addWidget(caption("defaultprinter", "Prints to your default printer", ui::Type::text));
    column->addWidget(caption("portrait", "Prints in \"Portait\" (long) style only", ui::Type::text));
    return column;
}

QLayout* PrintDialog::addbuttons()
{
    auto* row = new QHBoxLayout;
    fitroom(row, 0, gap);
    row->addStretch(1);
    auto* cmdprint = button("cmdprint", "PRINT", "", [this] { Q_EMIT cmdprint_Click(); });
    setenter(cmdprint);
    row->addWidget(cmdprint);
    row->addWidget(button("cmdcancel", "CANCEL", "", [this] { Q_EMIT cmdcancel_Click(); }));
    return row;
}

void PrintDialog::display(const MarginBoxes& boxes) const
{
    top->display(boxes.txttop);
    left->display(boxes.txtleft);
}

} // namespace print
