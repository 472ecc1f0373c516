#pragma once

#include <QObject>
#include <QString>
#include <filesystem>
#include <functional>

#include "shell/windows/boxes.h"

class QWidget;

namespace velmar::shell {

/// What the program hands to the system, and where it finds it.
struct HelpPlaces {
  std::filesystem::path manual{};
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
/// told.
class HelpCommands : public QObject {
  Q_OBJECT
 public:
  /// @param speech and what follows outlive this object
  HelpCommands(const Speech& speech, const HelpServices& services, const HelpPlaces& places,
               QObject* parent = nullptr)
      : QObject(parent), speech_(speech), services_(services), places_(places) {}

  /// Whether there is an address to write to.
  bool HasContact() const { return !places_.contact.isEmpty(); }
  /// Whether the maintenance program is installed.
  bool HasMaintenance() const;

 public slots:
  void ShowManual(QWidget* parent);
  void Contact(QWidget* parent);
  void ShowAbout(QWidget* parent);
  void StartMaintenance(QWidget* parent);

 private:
  void TellMissing(MessageRow row, const QString& what) const;
  void OpenAddress(const QString& address) const;

  const Speech& speech_;
  const HelpServices& services_;
  const HelpPlaces& places_;
};

}  // namespace velmar::shell
