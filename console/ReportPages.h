// An execution report as pages, on paper or in a PDF file.
#pragma once

#include <QPagedPaintDevice>
#include <QString>

#include "console_core/ReportHtml.h"

namespace quorvel::console {

// Which pages to print, counted from 1; 0 = the first, the last one, as a print dialog says when all are wanted.
struct PageRange {
  int first = 0;
  int last = 0;
};

// Draws the report on pages of the device's own size and margins, each with the footer and its number at its foot.
// Raises error 57 when the device takes no page.
void PaintReport(const ReportText& report, QPagedPaintDevice& device, PageRange range = {});

// Writes the report to a file: as PDF on A4 when its name ends in ".pdf", else as HTML. Raises error 75, which names
// the file and says why, when it cannot be written.
void SaveReport(const ReportText& report, const QString& file);

}  // namespace quorvel::console
