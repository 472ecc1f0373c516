#include "shell/structures/copied_table.h"

#include <QMimeData>
#include <QStringList>

#include "shell/windows/window_tools.h"

namespace velmar::structures {
namespace {

/// A tabulator or a line break would end the field.
QString OneField(const MessageLine& line, const presentation::Words& words) {
  return windows::ToQt(presentation::InWords(line, words)).simplified();
}

}  // namespace

QMimeData* ClipboardOf(const CopiedTable& table, const presentation::Words& words) {
  QStringList plain;
  QString html = QStringLiteral("<html><head><meta charset=\"utf-8\"></head><body><table>");
  for (const std::vector<MessageLine>& row : table) {
    QStringList fields;
    html += QStringLiteral("<tr>");
    for (const MessageLine& field : row) {
      fields << OneField(field, words);
      html += QStringLiteral("<td>") + fields.back().toHtmlEscaped() + QStringLiteral("</td>");
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
