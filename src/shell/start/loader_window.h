#pragma once

#include <QDialog>
#include <functional>

#include "presentation/texts/words.h"

class QLabel;
class QProgressBar;

namespace velmar::shell {

/// The loader (`FormLoaderIniziale`): product, version, and how far the load has come.
class LoaderWindow : public QDialog {
  Q_OBJECT
 public:
  LoaderWindow(const presentation::Words& words, const QString& version, QWidget* parent = nullptr);

  /// A family of `count` materials is being loaded; `done` of `all` families are there.
  /// @param title_row of the family
  void ShowProgress(MessageRow title_row, std::size_t count, int done, int all);

  /// Something of unknown length is going on. @param what it is
  void ShowWork(const QString& what);

 private:
  presentation::Words words_;
  QLabel* label_ = nullptr;
  QProgressBar* bar_ = nullptr;
};

}  // namespace velmar::shell
