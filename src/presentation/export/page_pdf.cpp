#include "presentation/export/page_pdf.h"

#include <QBuffer>
#include <QDateTime>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <cstdlib>
#include <optional>

namespace velmar::presentation {
namespace {

constexpr int kDotsPerInch = 1200;

/// `text` as a string of a PDF file.
std::string PdfString(const std::string& text) {
  std::string hexadecimal = "<FEFF";
  for (const QChar unit : QString::fromStdString(text))
    hexadecimal += QString::asprintf("%04X", static_cast<unsigned>(unit.unicode())).toStdString();
  return hexadecimal + '>';
}

/// The number behind the last `name` of `pdf`; nothing when there is none.
std::optional<std::size_t> NumberBehind(const std::string& pdf, const char* name) {
  const std::size_t at = pdf.rfind(name);
  if (at == std::string::npos) return std::nullopt;
  const char* begin = pdf.c_str() + at + std::char_traits<char>::length(name);
  char* end = nullptr;
  const unsigned long number = std::strtoul(begin, &end, 10);
  return end == begin ? std::nullopt : std::optional<std::size_t>(number);
}

/// Writes author and subject, which the toolkit cannot, by an update at the end of the file (ISO 32000-1,
/// 7.5.6): a new dictionary of properties under the number of the old one.
void AddProperties(std::string& pdf, const PaginaDiStampa& page, const std::string& title) {
  const auto size = NumberBehind(pdf, "/Size ");
  const auto info = NumberBehind(pdf, "/Info ");
  const auto root = NumberBehind(pdf, "/Root ");
  const auto previous = NumberBehind(pdf, "startxref\n");
  if (!size || !info || !root || !previous) return;
  const std::string created = QDateTime::currentDateTimeUtc().toString("yyyyMMddHHmmss").toStdString() + "Z";
  const std::size_t begin = pdf.size();
  pdf += std::to_string(*info) + " 0 obj\n<<\n/Title " + PdfString(title);
  if (!page.author.empty()) pdf += "\n/Author " + PdfString(page.author);
  if (!page.subject.empty()) pdf += "\n/Subject " + PdfString(page.subject);
  pdf += "\n/Creator " + PdfString(page.program.empty() ? "VELMARpro" : page.program) +
         "\n/CreationDate (D:" + created + ")\n>>\nendobj\n";
  const std::size_t table = pdf.size();
  pdf += "xref\n" + std::to_string(*info) + " 1\n" +
         QString::asprintf("%010zu 00000 n \n", begin).toStdString() + "trailer\n<<\n/Size " +
         std::to_string(*size) + "\n/Info " + std::to_string(*info) + " 0 R\n/Root " + std::to_string(*root) +
         " 0 R\n/Prev " + std::to_string(*previous) + "\n>>\nstartxref\n" + std::to_string(table) +
         "\n%%EOF\n";
}

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
  AddProperties(pdf, page, title);
  return pdf;
}

}  // namespace velmar::presentation
