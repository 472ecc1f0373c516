// velmarpro [PROJECT]: the desktop program.
#include <clocale>

#include "shell/start/desktop_application.h"
#include "shell/start/start_up.h"

int main(int argc, char** argv) {
  velmar::shell::DesktopApplication application(argc, argv);
  // Libraries below read and write numbers by the locale; files need the point.
  std::setlocale(LC_NUMERIC, "C");
  QCoreApplication::setApplicationName("velmarpro");
  QCoreApplication::setApplicationVersion(VELMAR_VERSION);
  return velmar::shell::RunDesktop(application);
}
