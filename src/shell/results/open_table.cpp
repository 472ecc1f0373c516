#include "shell/results/open_table.h"

#include "shell/windows/docked.h"

namespace velmar::shell {

// A table that goes with this object is told of no more.
OpenTable::~OpenTable() {
  if (window_) window_->disconnect(this);
  delete window_;
}

presentation::ResultsTable OpenTable::TableNow() const {
  return presentation::ResultsTableOf(open_.Setup(), *open_.Result(), words_);
}

void OpenTable::Show(QWidget* parent) {
  if (!open_.Result() || window_) return;
  window_ = new ResultsTableWindow(TableNow(), words_, parent);
  connect(window_, &QObject::destroyed, this, [this] {
    window_.clear();  // what tells it is no table any more
    emit Toggled();
  });
  StandBeside(window_, parent, ResultsTableWindow::kPreferredWidth);
  window_->setFocus();  // its keys are those of the table, not of the field that was left
  emit Toggled();
}

// A second run may give another result; the table shows the one that stands.
void OpenTable::Follow() {
  if (!window_) return;
  if (!open_.Result()) {
    window_->close();
  } else if (IsOpen()) {
    window_->Show(TableNow());
  }
}

void OpenTable::Close() {
  if (window_) window_->close();
}

}  // namespace velmar::shell
