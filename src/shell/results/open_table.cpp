#include "shell/results/open_table.h"

namespace velmar::shell {

// The window tells when it closes; it goes while there is someone to tell.
OpenTable::~OpenTable() {
  on_change_ = {};
  delete window_;
}

presentation::ResultsTable OpenTable::TableNow() const {
  return presentation::ResultsTableOf(services_.open.Setup(), *services_.open.Result(), services_.words);
}

void OpenTable::Show(QWidget* parent) {
  if (!services_.open.Result() || window_) return;
  window_ = new ResultsTableWindow(TableNow(), services_.words, parent);
  QObject::connect(window_, &QObject::destroyed, parent, [this] {
    window_.clear();  // what tells it is no table any more
    if (on_change_) on_change_();
  });
  window_->show();
  on_change_();
}

// A second run may give another result; the table shows the one that stands.
void OpenTable::Follow() {
  if (!window_) return;
  if (!services_.open.Result()) {
    window_->close();
  } else if (window_->isVisible()) {
    window_->Show(TableNow());
  }
}

void OpenTable::Close() {
  if (window_) window_->close();
}

}  // namespace velmar::shell
