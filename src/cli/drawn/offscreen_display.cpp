#include "cli/drawn/offscreen_display.h"

#include <QGuiApplication>
#include <clocale>
#include <cstdio>

namespace velmar::cli {
namespace {

/// Qt's remarks on the session (locale, runtime folder) are no concern of who asked for a report.
void KeepQuiet(QtMsgType kind, const QMessageLogContext&, const QString& text) {
  if (kind == QtCriticalMsg || kind == QtFatalMsg) std::fputs(qPrintable(text + '\n'), stderr);
}

}  // namespace

OffscreenDisplay::OffscreenDisplay() : words_{"velmar", "-platform", "offscreen"} {
  for (std::size_t i = 0; i < words_.size(); ++i) arguments_[i] = words_[i].data();
}

OffscreenDisplay::~OffscreenDisplay() = default;

void OffscreenDisplay::Open() {
  if (QCoreApplication::instance()) return;
  qInstallMessageHandler(KeepQuiet);
  const std::string numbers = std::setlocale(LC_NUMERIC, nullptr);
  application_ = std::make_unique<QGuiApplication>(argument_count_, arguments_.data());
  std::setlocale(LC_NUMERIC, numbers.c_str());
}

}  // namespace velmar::cli
