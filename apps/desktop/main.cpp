// velmarpro [PROJECT]: the desktop program.
#include <QApplication>
#include <clocale>

#include "shell/start/start_up.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  // Libraries below read and write numbers by the locale; files need the point.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName("velmarpro");
  QApplication::setApplicationDisplayName("VELMARpro");
  QApplication::setApplicationVersion(VELMAR_VERSION);
  return velmar::shell::RunDesktop(application);
}
