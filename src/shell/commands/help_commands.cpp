#include "shell/commands/help_commands.h"

#include <QUrl>

#include "foundation/message_rows.h"
#include "shell/commands/about_box.h"
#include "shell/commands/command_table.h"
#include "shell/fields/phrases.h"

namespace velmar::shell {
namespace {

bool Exists(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

QString ToQt(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

void TellMissing(const WindowServices& services, MessageRow row, const QString& what) {
  services.boxes.tell(Tone::kCritical, Text(services.words, row) + '\n' + what);
}

void ShowManual(const WindowServices& services) {
  const std::filesystem::path& manual = services.places.manual;
  if (!Exists(manual)) {
    TellMissing(services, kNoManualRow, ToQt(manual));
  } else if (!services.open_address(QUrl::fromLocalFile(ToQt(manual)).toString())) {
    TellMissing(services, kNotOpenedRow, ToQt(manual));
  }
}

void OpenAddress(const WindowServices& services, const QString& address) {
  if (address.isEmpty()) {
    services.boxes.tell(Tone::kInformation, Text(services.words, kNoContactRow));
  } else if (!services.open_address(address)) {
    TellMissing(services, kNotOpenedRow, address);
  }
}

void StartMaintenance(const WindowServices& services) {
  const std::filesystem::path& program = services.places.maintenance_program;
  if (!Exists(program) || !services.start_program(program))
    TellMissing(services, kNoMaintenanceRow, ToQt(program));
}

}  // namespace

void ExecuteHelpCommand(CommandId id, const WindowServices& services, QWidget* parent) {
  switch (id) {
    case CommandId::kTutorial:
      ShowManual(services);
      return;
    case CommandId::kContact:
      OpenAddress(services, services.places.contact);
      return;
    case CommandId::kAbout:
      AboutBox(
          services.words, services.version, services.places.website,
          [&services] { OpenAddress(services, services.places.website); }, parent)
          .exec();
      return;
    case CommandId::kMaintenance:
      StartMaintenance(services);
      return;
    default:
      services.boxes.tell(Tone::kInformation, Text(services.words, kNoWindowRow));
  }
}

}  // namespace velmar::shell
