#pragma once

#include <QDir>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"
#include "tests/shell/windows/fake_boxes.h"

namespace velmar::structures {

/// Says what stores say of a file that another program holds.
Failure LockedFailure();

using shell::FakeBoxes;

/// Stored results in memory.
class FakeResults {
 public:
  ResultSource Source();

  std::map<ResultKind, std::vector<calculation::FacadePart>> tables{};
  std::map<std::string, std::string> messages{};  ///< by the name of the result
  bool locked = false;
  int lists = 0;  ///< how often the list was read
};

/// A library in memory.
class FakeLibrary {
 public:
  LibrarySource Source();

  std::map<Branch, std::vector<std::string>> files{};
  std::map<std::string, std::vector<MeasuredTest>> tests{};  ///< by file name
  std::map<std::string, std::string> keywords{};             ///< by test name
  bool locked = false;
};

/// A part with R from `lowest` dB, 1 dB more a band.
calculation::FacadePart PartOf(const std::string& name, double lowest);
/// The same as a measured test.
MeasuredTest TestOf(const std::string& name, double lowest);

/// Walls, windows and a small element in three files, and stored results beside them.
FakeLibrary SmallLibrary();

/// The one child of `window` called `name`.
template <typename Widget>
Widget& Child(QWidget& window, const char* name) {
  auto* child = window.findChild<Widget*>(QLatin1String(name));
  if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *child;
}

/// Saves what `window` looks like into the folder VELMAR_PICTURES, when that is set.
void Picture(QWidget& window, const QString& name);

/// Shows `window` as the active one: only there do shortcuts work.
void Activate(QWidget& window);

/// The names of the controls that Tab reaches in `window`, in its order, from the one that has the focus.
QStringList TabStops(QWidget& window);

/// Selects the file `name` in the tree called `tree`.
void OpenLibraryFile(QWidget& window, const char* tree, const QString& name);
/// Chooses `keyword` in the list of keywords called `box`, as from its list.
void ChooseKeyword(QWidget& window, const char* box, const QString& keyword);
/// Selects the test in row `row` of the list called `list`.
void SelectTest(QWidget& window, const char* list, int row);

}  // namespace velmar::structures
