#include "shell/commands/help_commands.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>

#include "foundation/message_rows.h"
#include "shell/commands/about_box.h"
#include "shell/commands/desk.h"
#include "shell/manual/help_chapters.h"
#include "shell/manual/manual_window.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

bool Exists(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

QString FromUtf8(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

}  // namespace

HelpCommands::HelpCommands(const Speech& speech, const HelpServices& services, const HelpPlaces& places,
                           QObject* parent)
    : QObject(parent), speech_(speech), services_(services), places_(places) {
  qApp->installEventFilter(this);
}

// The command of the main window does not reach the windows above it, and a modal one would hold it back.
bool HelpCommands::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  auto* part = qobject_cast<QWidget*>(watched);
  if (part == nullptr || key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
  QWidget* window = part->window();
  const bool dialog = window->windowType() == Qt::Dialog || window->windowType() == Qt::Sheet;
  if (!dialog || window == manual_) return false;
  const QWidget* focus = window->focusWidget() != nullptr ? window->focusWidget() : part;
  ShowChapter(ChapterFor(focus, std::nullopt), window);
  return true;
}

void HelpCommands::ShowHelp(const Desk& desk) {
  ShowChapter(ChapterFor(QApplication::focusWidget(), desk.open.Setup().calculation), &desk.window);
}

void HelpCommands::ShowChapter(std::string_view anchor, QWidget* parent) {
  QFile file(FromUtf8(places_.manual_text));
  if (!file.open(QIODevice::ReadOnly)) return TellMissing(kNoManualRow, file.fileName());
  // A modal window blocks those that are not its own.
  if (manual_ != nullptr && manual_->parentWidget() != parent) delete manual_.data();
  if (manual_ == nullptr) {
    manual_ = new ManualWindow(speech_.words, QString::fromUtf8(file.readAll()),
                               FromUtf8(places_.manual_text.parent_path()), parent);
    manual_->setAttribute(Qt::WA_DeleteOnClose);
    connect(manual_, &ManualWindow::PdfWanted, this, [this] { ShowManual(manual_); });
  }
  manual_->show();
  manual_->raise();
  manual_->activateWindow();
  manual_->ShowChapter(std::string(anchor));
}

void HelpCommands::TellMissing(MessageRow row, const QString& what) const {
  speech_.boxes.tell(Tone::kCritical, Text(speech_.words, row) + '\n' + what);
}

void HelpCommands::ShowManual(QWidget* /*parent*/) {
  const std::filesystem::path& manual = places_.manual;
  if (!Exists(manual)) {
    TellMissing(kNoManualRow, FromUtf8(manual));
  } else if (!services_.open_address(QUrl::fromLocalFile(FromUtf8(manual)).toString())) {
    TellMissing(kNotOpenedRow, FromUtf8(manual));
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
  if (!HasMaintenance() || !services_.start_program(program))
    TellMissing(kNoMaintenanceRow, FromUtf8(program));
}

}  // namespace velmar::shell
