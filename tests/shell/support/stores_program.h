#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <memory>
#include <string>

#include "shell/commands/structure_commands.h"
#include "shell/structures/store_sources.h"
#include "tests/shell/support/window_fixture.h"

class QDialog;

namespace velmar::shell {

/// A main window with the windows on stored and measured structures: the shipped library, and a results
/// database of its own.
struct StoresProgram {
  StoresProgram();

  /// A copy of the library that may be changed, from now on. @return the folder "Database"
  std::filesystem::path CopyLibrary();

  /// A copy of the library with the series "Serramenti", of a window "Finestra a due ante" of 34 dB and a
  /// "Porta-finestra" of 38 dB, each of 1,75 m², and "Bocchette", of a vent.
  void AddMeasurements();

  /// Stores an airborne result with R from `lowest_db` at 50 Hz, 1 dB more a band.
  void Store(const std::string& name, double lowest_db, double area_m2) const;

  /// Opens `file` in the tree called `tree` of `window`, and the entry called `entry` of the list beside it.
  static void OpenEntry(const QDialog& window, const QString& tree, const QString& file, const QString& list,
                        const QString& entry);

  /// The answer to the next question for a name.
  QString name{};

  QTemporaryDir folder;
  structures::LibraryPlaces places;
  WindowFixture fixture;
  std::unique_ptr<StructureCommands> commands;

  ~StoresProgram() { fixture.window.reset(); }

 private:
  void OpenWindow();
};

}  // namespace velmar::shell
