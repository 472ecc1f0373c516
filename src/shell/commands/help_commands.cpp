#include "shell/commands/help_commands.h"

#include <QUrl>

#include "foundation/message_rows.h"
#include "shell/commands/about_box.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

bool Exists(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

QString ToQt(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

}  // namespace

void HelpCommands::TellMissing(MessageRow row, const QString& what) const {
  speech_.boxes.tell(Tone::kCritical, Text(speech_.words, row) + '\n' + what);
}

void HelpCommands::ShowManual(QWidget* /*parent*/) {
  const std::filesystem::path& manual = places_.manual;
  if (!Exists(manual)) {
    TellMissing(kNoManualRow, ToQt(manual));
  } else if (!services_.open_address(QUrl::fromLocalFile(ToQt(manual)).toString())) {
    TellMissing(kNotOpenedRow, ToQt(manual));
  }
}

void HelpCommands::OpenAddress(const QString& address) const {
  if (address.isEmpty()) {
    speech_.boxes.tell(Tone::kInformation, Text(speech_.words, kNoContactRow));
  } else if (!services_.open_address(address)) {
    TellMissing(kNotOpenedRow, address);
  }
}

void HelpCommands::Contact(QWidget* /*parent*/) { OpenAddress(places_.contact); }

void HelpCommands::ShowAbout(QWidget* parent) {
  AboutBox box(speech_.words, services_.version, places_.website, parent);
  connect(&box, &AboutBox::WebsiteWanted, this, [this] { OpenAddress(places_.website); });
  box.exec();
}

bool HelpCommands::HasMaintenance() const { return Exists(places_.maintenance_program); }

void HelpCommands::StartMaintenance(QWidget* /*parent*/) {
  const std::filesystem::path& program = places_.maintenance_program;
  if (!HasMaintenance() || !services_.start_program(program)) TellMissing(kNoMaintenanceRow, ToQt(program));
}

}  // namespace velmar::shell
