#include "presentation/export/document_provenance.h"

#include <QCryptographicHash>
#include <QDate>
#include <QLocale>
#include <utility>

namespace velmar::presentation {

std::string Sha256Of(std::string_view bytes) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return hash.result().toHex().toStdString();
}

Provenance ProvenanceOf(std::string_view project_bytes, std::string project_file, MaterialSources sources,
                        elements::DocumentLanguage language) {
  const QDate today = QDate::currentDate();
  const QString date = language == elements::DocumentLanguage::kEnglish
                           ? QLocale(QLocale::English).toString(today, QStringLiteral("d MMMM yyyy"))
                           : today.toString(QStringLiteral("dd/MM/yyyy"));
  return {.program = "VELMARpro " VELMAR_VERSION,
          .date = date.toStdString(),
          .iso_date = today.toString(Qt::ISODate).toStdString(),
          .project_file = std::move(project_file),
          .fingerprint = Sha256Of(project_bytes),
          .sources = std::move(sources)};
}

}  // namespace velmar::presentation
