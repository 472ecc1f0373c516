#pragma once

#include <QList>
#include <QTemporaryDir>
#include <QTimer>
#include <map>
#include <random>
#include <string>

#include "tests/shell/support/window_fixture.h"

class QLineEdit;
class QToolButton;

namespace velmar::shell {

/// A user who does anything, whether it makes sense or not: one of a table of actions at a time, with what is
/// on the screen.
class RandomUser {
 public:
  /// @param seed the same seed does the same things
  RandomUser(WindowFixture& fixture, std::mt19937::result_type seed);

  /// Does something. @return what it was
  QString Act();

 private:
  struct Action;
  static const std::vector<Action>& Actions();

  int Pick(qsizetype count);
  template <typename Item>
  const Item& OneOf(const QList<Item>& items) {
    return items.at(Pick(items.size()));
  }
  template <typename Widget>
  Widget* AnyShown();

  void ChooseCalculation();
  void PressKindButton();
  void Run();
  void ClickCheck();
  void MoveInList();
  void TypeNumber();
  void TypeGarbage();
  void TypeIntoList();
  void CopyAndPaste();
  void PressAnyKey();
  void ChangeTab();
  void OpenExample();
  void OpenRubbish();
  void SaveAndReopen();
  void ShowTable();
  void UseTable();
  void MoveMouse();
  void Resize();
  void UseDialog();
  void DropMaterial();
  void AnswerDialog();
  void GoBackAndForth();
  void GoBack();
  void UndoWhatWasDone();
  void FixVariant();
  void GoToVariant(QToolButton& button);
  void PasteTable();
  void MoveLayers();
  void UseVariants();
  void SwitchContinuous();
  void StepNumber();

  WindowFixture& fixture_;
  std::mt19937 random_;
  QTimer any_dialog_;  ///< a key on a focused button may open one as well
  QTemporaryDir folder_;
  std::map<std::string, elements::Setup> fixed_;  ///< what was fixed, by the text that the variant keeps
  QStringList examples_;
};

}  // namespace velmar::shell
