#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <filesystem>
#include <functional>
#include <string_view>

#include "shell/windows/boxes.h"

class QWidget;

namespace velmar::shell {

class ManualWindow;
struct Desk;

/// What the program hands to the system, and where it finds it.
struct HelpPlaces {
  std::filesystem::path manual{};       ///< for paper
  std::filesystem::path manual_text{};  ///< for the window
  std::filesystem::path maintenance_program{};
  QString website{};  ///< empty: the product names none
  QString contact{};  ///< address behind "Contatta"; empty: none
};

/// How it is handed over.
struct HelpServices {
  /// Hands a file or an address to the system. @return whether something opened it
  std::function<bool(const QString& address)> open_address{};
  /// Starts a program. @return whether it started
  std::function<bool(const std::filesystem::path&)> start_program{};
  QString version{};
};

/// The commands that reach outside: manual, contact, about box, maintenance program. What is not there is
/// told. F1 in a window of its own opens the manual at its chapter; in the main window it is a command.
class HelpCommands : public QObject {
  Q_OBJECT
 public:
  /// @param speech and what follows outlive this object
  HelpCommands(const Speech& speech, const HelpServices& services, const HelpPlaces& places,
               QObject* parent = nullptr);

  /// Whether there is an address to write to.
  bool HasContact() const { return !places_.contact.isEmpty(); }
  /// Whether the maintenance program is installed.
  bool HasMaintenance() const;

 public slots:
  /// Hands the manual for paper to the system.
  void ShowManual(QWidget* parent);
  /// Opens the manual at the chapter on what the cursor stands in.
  void ShowHelp(const Desk& desk);
  void Contact(QWidget* parent);
  void ShowAbout(QWidget* parent);
  void StartMaintenance(QWidget* parent);

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void ShowChapter(std::string_view anchor, QWidget* parent);
  void TellMissing(MessageRow row, const QString& what) const;
  void OpenAddress(const QString& address) const;

  const Speech& speech_;
  const HelpServices& services_;
  const HelpPlaces& places_;
  QPointer<ManualWindow> manual_{};
};

}  // namespace velmar::shell
