// bench_start fill N     makes the data folder of the user HOME with N more structural materials
// bench_start BEGAN      starts the program as its main does and ends it when the window is drawn: the time
//                        since BEGAN (seconds since 1970, with a point), milliseconds, and the most memory in
//                        use, MB
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/resource.h>

#include "bench/many_materials.h"
#include "shell/start/desktop_application.h"
#include "shell/start/start_up.h"
#include "storage/configuration/configuration.h"
#include "storage/configuration/documents_folder.h"

namespace velmar {
namespace {

namespace fs = std::filesystem;

void Fill(int count) {
  const fs::path data = storage::CartellaDocumenti() / "VELMARpro";
  fs::create_directories(data.parent_path());
  fs::copy(SHARE, data, fs::copy_options::recursive);
  AddMaterials(data / storage::kMaterialDatabase, count);
}

double Now() {
  return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

/// Ends the program when the main window was drawn.
class FirstPaint : public QObject {
 public:
  double at = 0.0;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (at != 0.0 || event->type() != QEvent::Paint) return false;
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || widget->window()->objectName() != "Form1") return false;
    // Behind the painting that has begun.
    QTimer::singleShot(0, widget->window(), [this, window = widget->window()] {
      at = Now();
      window->close();
    });
    at = Now();  // until then, so that it is asked once
    return false;
  }
};

}  // namespace
}  // namespace velmar

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc == 3) {
    velmar::Fill(std::atoi(argv[2]));
    return 0;
  }
  if (argc != 2) return 2;
  int no_project = 1;  // the moment is no file to open
  velmar::shell::DesktopApplication application(no_project, argv);
  QCoreApplication::setApplicationVersion("2.0.0");
  velmar::FirstPaint paint;
  application.installEventFilter(&paint);
  const int code = velmar::shell::RunDesktop(application);
  rusage used{};
  ::getrusage(RUSAGE_SELF, &used);
  std::printf("%.0f %.0f\n", 1000.0 * (paint.at - std::atof(argv[1])),
              static_cast<double>(used.ru_maxrss) / 1024.0);
  return code;
}
