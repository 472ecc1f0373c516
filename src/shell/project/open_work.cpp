#include "shell/project/open_work.h"

#include <QScopedValueRollback>

namespace velmar::shell {

OpenWork::OpenWork(calculation::OpenCalculation& open, QObject* parent)
    : QObject(parent), open_(open), had_result_(open.Result().has_value()) {
  open_.OnChange([this] { Tell(); });
}

OpenWork::~OpenWork() { open_.OnChange({}); }

void OpenWork::Tell() {
  if (completing_) return;
  {
    const QScopedValueRollback completing(completing_, true);
    emit AboutToTell();
  }
  const bool has_result = open_.Result().has_value();
  const bool gone = had_result_ && !has_result;
  had_result_ = has_result;
  if (gone) emit ResultGone();
  emit Changed();
}

}  // namespace velmar::shell
