#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>
#include <functional>

#include "foundation/message.h"
#include "presentation/texts/words.h"

class QListWidget;

namespace velmar::printing {

/// What the chooser is given.
struct PrinterChoice {
  QStringList printers{};  ///< device names of the installed printers
  QString current{};
  /// Makes `printer` the one that is printed on. @return false when it is not there any more
  std::function<bool(const QString& printer)> select{};
  std::function<void(const QString& text)> tell_failure{};
};

/// `Dialog`: the list of the installed printers. It closes only when the chosen one could be selected.
class PrinterChooser : public QDialog {
 public:
  PrinterChooser(PrinterChoice choice, presentation::Words words, QWidget* parent = nullptr);

  void accept() override;

 private:
  PrinterChoice choice_;
  presentation::Words words_;
  QListWidget* list_;
};

}  // namespace velmar::printing
