// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "ui/printqueue.h"
#include "ui/qtdesktop.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace ui {
namespace {

/// The default printer, or the first where none is the default.
QPrinterInfo chosenprinter()
{
    const QPrinterInfo chosen = QPrinterInfo::defaultPrinter();
    if (!chosen.isNull())
        return chosen;
    const QList<QPrinterInfo> all = QPrinterInfo::availablePrinters();
    return all.isEmpty() ? QPrinterInfo() : all.constFirst();
}

/// Turns the paper upright and takes all of it, but for what the printer cannot reach: the text has its own margins.
void setpaper(QPrinter& printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setMode(QPageLayout::StandardMode);
    layout.setOrientation(QPageLayout::Portrait);
    layout.setMargins(layout.minimumMargins());
    printer.setPageLayout(layout);
}

QFont pagefont(int points)
{
    QFont font(QStringLiteral("Courier New"), points);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setKerning(false);
    return font;
}

PaperRoom roomof(QPrinter& printer, int points)
{
    const QFontMetricsF metrics(pagefont(points), &printer);
    const QRectF paper = printer.pageRect(QPrinter::DevicePixel);
    constexpr qreal inexact = 0.001; // of a character, in a sum of widths that would fit
    return {static_cast<int>(paper.width() / metrics.horizontalAdvance(QLatin1Char('0')) + inexact),
            static_cast<int>(paper.height() / metrics.lineSpacing() + inexact)};
}

void drawpage(QPainter& painter, const std::vector<std::string>& lines)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    qreal baseline = metrics.ascent();
    for (const std::string& line : lines) {
        painter.drawText(QPointF(0, baseline), QString::fromStdString(line));
        baseline += metrics.lineSpacing();
    }
}

std::string failureof(QPrinter& printer)
{
    if (!printer.outputFileName().isEmpty())
        return "The file cannot be written: " + printer.outputFileName().toStdString();
    return "The printer does not answer: " + printer.printerName().toStdString();
}

} // namespace

bool QtDesktop::hasprinter()
{
    return !chosenprinter().isNull();
}

PaperRoom QtDesktop::paperroom(int points)
{
    QPrinter printer(chosenprinter(), QPrinter::HighResolution); // without a printer it stands for a PDF file
    setpaper(printer);
    return roomof(printer, points);
}

std::string QtDesktop::print(const PrintJob& job)
{
    const QPrinterInfo chosen = chosenprinter();
    if (job.pdf.empty() && chosen.isNull())
        return "There is no printer any more";
    QPrinter printer(chosen, QPrinter::HighResolution);
    if (!job.pdf.empty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QFile::decodeName(job.pdf.c_str()));
    }
    setpaper(printer);
    printer.setDocName(QString::fromStdString(job.name));
    QPainter painter;
    if (!painter.begin(&printer))
        return failureof(printer);
    painter.setFont(pagefont(job.points));
    bool whole = true;
    for (std::size_t page = 0; page < job.pages.size() && whole; ++page) {
        whole = page == 0 || printer.newPage();
        drawpage(painter, job.pages.at(page));
    }
    if (!painter.end() || !whole)
        return failureof(printer);
    return job.pdf.empty() ? queuerefusal() : std::string();
}

} // namespace ui
