#include "console/ReportPages.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QSaveFile>
#include <QScreen>
#include <QTextDocument>
#include <algorithm>

#include "platform/Error.h"
#include "qt/Convert.h"

namespace quorvel::console {
namespace {

// In pixels of the screen.
constexpr int kFooterText = 11;
constexpr int kFooterHeight = 28;
constexpr QRgb kFooterColour = 0xFF52606D;

// The document in pages that fit the device, and the room under each for its footer.
class Pages {
 public:
  // Laid out as on the screen and drawn larger: text documents do not scale every length themselves.
  Pages(const QString& html, QPagedPaintDevice& device)
      : scale_(device.logicalDpiY() / QGuiApplication::primaryScreen()->logicalDotsPerInchY()),
        size_(device.width() / scale_, device.height() / scale_ - kFooterHeight) {
    document_.setUseDesignMetrics(true);
    document_.setDocumentMargin(0);
    document_.setHtml(html);
    document_.setPageSize(size_);
  }

  int Count() const { return document_.pageCount(); }

  // The page counted from 1.
  void Draw(QPainter& painter, int page) const {
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    const double top = (page - 1) * size_.height();
    context.clip = QRectF(QPointF(0, top), size_);
    painter.save();
    painter.scale(scale_, scale_);
    painter.translate(0, -top);
    painter.setClipRect(context.clip);
    document_.documentLayout()->draw(&painter, context);
    painter.restore();
  }

  void DrawFooter(QPainter& painter, const QString& footer, int page) const {
    painter.save();
    painter.scale(scale_, scale_);
    QFont font = document_.defaultFont();
    font.setPixelSize(kFooterText);
    painter.setFont(font);
    painter.setPen(QColor(kFooterColour));
    const QRectF place(0, size_.height(), size_.width(), kFooterHeight);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom, footer);
    painter.drawText(place, Qt::AlignRight | Qt::AlignBottom, QString("Page %1 of %2").arg(page).arg(Count()));
    painter.restore();
  }

 private:
  QTextDocument document_;
  double scale_;
  QSizeF size_;
};

QByteArray PdfOf(const ReportText& report) {
  constexpr int kDotsPerInch = 300;
  constexpr double kMargin = 18;  // millimetres
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&buffer);
    pdf.setResolution(kDotsPerInch);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
    pdf.setTitle("Execution report");
    pdf.setCreator("Quorvel");
    PaintReport(report, pdf);
  }
  return bytes;
}

}  // namespace

void PaintReport(const ReportText& report, QPagedPaintDevice& device, PageRange range) {
  const Pages pages(qt::ToQt(report.html), device);
  const int first = std::max(range.first, 1);
  const int last = range.last > 0 ? std::min(range.last, pages.Count()) : pages.Count();
  const QString footer = qt::ToQt(report.footer);
  QPainter painter;
  bool going = painter.begin(&device);
  for (int page = first; going && page <= last; ++page) {
    if (page > first) going = device.newPage();
    if (!going) break;
    pages.Draw(painter, page);
    pages.DrawFooter(painter, footer, page);
  }
  if (!going || !painter.end()) throw Error(SystemError::kDeviceInput, "The report cannot be printed there");
}

void SaveReport(const ReportText& report, const QString& file) {
  const bool pdf = file.endsWith(".pdf", Qt::CaseInsensitive);
  const QByteArray bytes = pdf ? PdfOf(report) : QByteArray::fromStdString(report.html);
  // What stood there before stays until the new report is whole.
  QSaveFile out(file);
  if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit()) {
    throw Error(SystemError::kPathAccess, qt::FromQt(file + ": The report cannot be written: " + out.errorString()));
  }
}

}  // namespace quorvel::console
