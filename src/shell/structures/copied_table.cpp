#include "shell/structures/copied_table.h"

#include <QLocale>
#include <QMimeData>
#include <QStringList>

#include "shell/windows/phrases.h"
#include "shell/windows/window_tools.h"

namespace velmar::structures {
namespace {

/// A tabulator or a line break would end the field.
QString OneField(const MessageLine& line, const presentation::Words& words) {
  return shell::FromUtf8(presentation::InWords(line, words)).simplified();
}

/// The two families of spreadsheets each have attributes of their own for what a cell is.
QString CellOf(const QString& text, const std::optional<double>& number) {
  QString attributes = QStringLiteral(R"( sdnum="1033;0;@" x:str style='mso-number-format:"\@"')");
  if (number) {
    const QString value = QString::number(*number, 'g', QLocale::FloatingPointShortest);
    attributes = QStringLiteral(R"( sdval="%1" sdnum="1033;" x:num="%1")").arg(value);
  }
  return QStringLiteral("<td%1>%2</td>").arg(attributes, text.toHtmlEscaped());
}

}  // namespace

QMimeData* ClipboardOf(const CopiedTable& table, const presentation::Words& words) {
  QStringList plain;
  QString html = QStringLiteral(
      "<html xmlns:x=\"urn:schemas-microsoft-com:office:excel\"><head><meta charset=\"utf-8\"></head>"
      "<body><table>");
  for (const std::vector<storage::CopiedField>& row : table) {
    QStringList fields;
    html += QStringLiteral("<tr>");
    for (const storage::CopiedField& field : row) {
      fields << OneField(field.text, words);
      html += CellOf(fields.back(), field.number);
    }
    html += QStringLiteral("</tr>");
    plain << fields.join(QLatin1Char('\t'));
  }
  auto* data = new QMimeData;
  data->setText(plain.join(QLatin1Char('\n')) + QLatin1Char('\n'));
  data->setHtml(html + QStringLiteral("</table></body></html>"));
  return data;
}

}  // namespace velmar::structures
