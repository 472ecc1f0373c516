#include "shell/windows/button_row.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <utility>

namespace velmar::shell {

ButtonRow::ButtonRow(QWidget* parent) : QWidget(parent), row_(new QHBoxLayout(this)) {
  row_->setContentsMargins(0, 0, 0, 0);
}

QPushButton* ButtonRow::Add(const char* object_name, const QString& text, std::function<void()> action) {
  auto* button = new QPushButton(text, this);
  button->setObjectName(QLatin1String(object_name));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [action = std::move(action)] { action(); });
  row_->addWidget(button);
  return button;
}

void ButtonRow::AddStretch() { row_->addStretch(1); }

}  // namespace velmar::shell
