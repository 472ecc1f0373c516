#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/fields/list_boxes.h"

namespace velmar::shell {

/// The name of a base element or component: taken from the stored results, or typed freely.
class NameBox : public QuietBox {
  Q_OBJECT

 public:
  NameBox(const QString& object_name, std::function<std::vector<std::string>()> names,
          QWidget* parent = nullptr);

  void Show(const std::string& name);

  void showPopup() override;

 public slots:
  /// What leaving the box does, while it keeps the focus.
  void Settle();

 signals:
  void Named(const std::string& name);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void ReadNames();
  void Take(const QString& name);

  std::function<std::vector<std::string>()> names_;
  QString shown_;
  bool typed_ = false;
};

}  // namespace velmar::shell
