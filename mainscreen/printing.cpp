// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/session.h"
#include "print/printout.h"

#include <array>

namespace mainscreen {
namespace {

constexpr std::array pdffilters{ui::FileFilter{"PDF Files (*.pdf)", "*.pdf"}};

std::string toolongtext(const print::Printout& printout, const ui::PaperRoom& room)
{
    return "Lines too long for the paper: " + std::to_string(printout.toolong) + "\nOnly " +
           std::to_string(room.characters) + " characters fit on a line in this font size;\n" +
           "what is longer goes on in the next line.";
}

} // namespace

void Session::chordprint()
{
    printfill();
    print::setmargindefaults(pagesettings);
    printdialog = {std::to_string(pagesettings.topmargin), std::to_string(pagesettings.leftmargin)};
    desktop.open(ui::Screen::printdialog);
}

void Session::txttop_Change(const std::string& text)
{
    printdialog.txttop = text;
}

void Session::txtleft_Change(const std::string& text)
{
    printdialog.txtleft = text;
}

void Session::cmdtopdown_Click()
{
    movenumber(print::margindown, printdialog.txttop, pagesettings.topmargin);
}

void Session::cmdtopup_Click()
{
    movenumber(print::marginup, printdialog.txttop, pagesettings.topmargin);
}

void Session::cmdleftdown_Click()
{
    movenumber(print::margindown, printdialog.txtleft, pagesettings.leftmargin);
}

void Session::cmdleftup_Click()
{
    movenumber(print::marginup, printdialog.txtleft, pagesettings.leftmargin);
}

void Session::cmdprint_Click()
{
    pagesettings.topmargin = print::typedmargin(printdialog.txttop);
    pagesettings.leftmargin = print::typedmargin(printdialog.txtleft);
    printfill();
    if (page.text.empty()) {
        desktop.tell(ui::Icon::information, "No data in print area to print, will abort. sorry");
        return;
    }
    printpages(print::withmargins(page.text, pagesettings.topmargin, pagesettings.leftmargin));
    desktop.close(ui::Screen::printdialog);
}

void Session::cmdcancel_Click()
{
    desktop.close(ui::Screen::printdialog);
}

void Session::printpages(const std::string& text)
{
    ui::PrintJob job{.name = "tonefret chords", .points = page.fontsize, .pages = {}, .pdf = {}};
    if (!desktop.hasprinter()) {
        const auto picked = pickpdf();
        if (!picked)
            return;
        job.pdf = *picked;
    }
    const ui::PaperRoom room = desktop.paperroom(job.points);
    print::Printout printout = print::layoutpages(text, room);
    if (printout.toolong > 0)
        desktop.tell(ui::Icon::information, toolongtext(printout, room));
    job.pages = std::move(printout.pages);
    if (const std::string failure = desktop.print(job); !failure.empty())
        desktop.tell(ui::Icon::critical, "Cannot print\n" + failure);
}

/// Asks for a file in place of the printer that is missing; nothing: none is to be written.
std::optional<std::filesystem::path> Session::pickpdf()
{
    if (desktop.ask("There is no printer.  Save the pages as a PDF file instead?", "") == ui::Answer::no)
        return std::nullopt;
    return picksave(pdffilters, ".pdf");
}

} // namespace mainscreen
