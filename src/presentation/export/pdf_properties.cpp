#include "presentation/export/pdf_properties.h"

#include <QDateTime>
#include <QString>
#include <cstdlib>
#include <optional>

namespace velmar::presentation {
namespace {

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

}  // namespace

void AddProperties(std::string& pdf, const DocumentProperties& properties) {
  const auto size = NumberBehind(pdf, "/Size ");
  const auto info = NumberBehind(pdf, "/Info ");
  const auto root = NumberBehind(pdf, "/Root ");
  const auto previous = NumberBehind(pdf, "startxref\n");
  if (!size || !info || !root || !previous) return;
  const std::string created = QDateTime::currentDateTimeUtc().toString("yyyyMMddHHmmss").toStdString() + "Z";
  const std::size_t begin = pdf.size();
  pdf += std::to_string(*info) + " 0 obj\n<<\n/Title " + PdfString(properties.title);
  if (!properties.author.empty()) pdf += "\n/Author " + PdfString(properties.author);
  if (!properties.subject.empty()) pdf += "\n/Subject " + PdfString(properties.subject);
  pdf += "\n/Creator " + PdfString(properties.program.empty() ? "VELMARpro" : properties.program) +
         "\n/CreationDate (D:" + created + ")\n>>\nendobj\n";
  const std::size_t table = pdf.size();
  pdf += "xref\n" + std::to_string(*info) + " 1\n" +
         QString::asprintf("%010zu 00000 n \n", begin).toStdString() + "trailer\n<<\n/Size " +
         std::to_string(*size) + "\n/Info " + std::to_string(*info) + " 0 R\n/Root " + std::to_string(*root) +
         " 0 R\n/Prev " + std::to_string(*previous) + "\n>>\nstartxref\n" + std::to_string(table) +
         "\n%%EOF\n";
}

}  // namespace velmar::presentation
