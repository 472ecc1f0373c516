#pragma once

#include <QLineEdit>

#include "presentation/texts/words.h"

namespace velmar::shell {

/// The search above a list. Enter takes the best hit, which is left to whoever shows the list, and goes on to
/// the default button of its window; where nothing was found it goes no further.
class SearchField : public QLineEdit {
  Q_OBJECT

 public:
  /// @param caption what is searched for, shown while nothing is
  SearchField(const QString& object_name, const QString& caption, QWidget* parent = nullptr);

  /// Beside the field stands that nothing holds what was typed.
  void SayNoHit(const presentation::Words& words);

 signals:
  /// Enter was pressed.
  void Entered();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool without_hit_ = false;  ///< of the Enter that is told
};

}  // namespace velmar::shell
