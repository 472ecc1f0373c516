// Makes the user manual that the program opens, at build time.
//   velmar-build-manual MANUAL.md OUT.pdf
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>

#include "manual_builder/manual_pages.h"

namespace {

constexpr int kDotsPerInch = 300;
constexpr const char* kTitle = "VELMARpro - Manuale d'uso";

bool WritePdf(const velmar::manual::ManualPages& pages, const QString& path) {
  QPdfWriter writer(path);
  writer.setResolution(kDotsPerInch);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  writer.setTitle(kTitle);
  writer.setCreator("VELMARpro");
  return pages.PaintOn(writer);
}

}  // namespace

int main(int count, char** arguments) {
  QGuiApplication application(count, arguments);
  if (count != 3) {
    qWarning("usage: velmar-build-manual MANUAL.md OUT.pdf");
    return 2;
  }
  QFile text(QGuiApplication::arguments().at(1));
  if (!text.open(QIODevice::ReadOnly)) {
    qWarning("%s cannot be read", arguments[1]);
    return 1;
  }
  const velmar::manual::ManualPages pages(QString::fromUtf8(text.readAll()), QFileInfo(text).absolutePath(),
                                          kTitle);
  for (const QString& picture : pages.MissingPictures()) qWarning("no picture %s", qPrintable(picture));
  if (!pages.HoldsWholeText()) qWarning("the text runs over its last page");
  if (!pages.MissingPictures().isEmpty() || !pages.HoldsWholeText()) return 1;
  return WritePdf(pages, QGuiApplication::arguments().at(2)) ? 0 : 1;
}
