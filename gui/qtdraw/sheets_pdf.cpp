#include "qtdraw/sheets_pdf.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QRegularExpression>

#include "qtdraw/paged_surface.h"
#include "sheets/sheets_pages.h"

namespace tolmar::qtdraw {

QByteArray sheetsPdf(const sheets::SheetPlan& plan, const std::string& hullName, int langue) {
  QByteArray pdf;
  {
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(QString::fromStdString(hullName));
    writer.setCreator(QStringLiteral("Tolmar"));
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    PagedSurface surface(writer);
    if (!surface.active()) return {};
    sheets::printSheets(surface, plan, hullName, langue);
  }
  // The writer stamps the time of writing: its digits become a fixed date,
  // of the same length, so that every offset of the file stays valid.
  static const QRegularExpression date(QStringLiteral("\\(D:([0-9]{14})"));
  const QString latin = QString::fromLatin1(pdf);
  QRegularExpressionMatchIterator it = date.globalMatch(latin);
  while (it.hasNext()) {
    const QRegularExpressionMatch m = it.next();
    pdf.replace(m.capturedStart(1), 14, "20000101000000");
  }
  return pdf;
}

}  // namespace tolmar::qtdraw
