#include "presentation/export/page_pdf.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>

#include "presentation/export/pdf_properties.h"

namespace velmar::presentation {
namespace {

constexpr int kDotsPerInch = 1200;

}  // namespace

std::string PagePdf(const PaginaDiStampa& page, const std::string& title) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setTitle(QString::fromStdString(title));
    writer.setCreator(QStringLiteral("VELMARpro"));
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    // The page brings its own margins.
    writer.setPageMargins({0.0, 0.0, 0.0, 0.0});
    QPainter painter(&writer);
    const QSizeF paper = QPageSize::size(QPageSize::A4, QPageSize::Inch);
    for (int index = 0; index < PageCountOf(paper, page); ++index) {
      if (index > 0) writer.newPage();
      ComponiPagina(painter, kDotsPerInch, paper, page, index);
    }
  }
  std::string pdf = buffer.data().toStdString();
  AddProperties(pdf,
                {.title = title, .author = page.author, .subject = page.subject, .program = page.program});
  return pdf;
}

}  // namespace velmar::presentation
