#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/fields/list_boxes.h"

namespace velmar::shell {

/// The name of a base element or component: taken from the stored results, or typed freely.
class NameBox : public QuietBox {
 public:
  NameBox(const QString& object_name, std::function<std::vector<std::string>()> names,
          QWidget* parent = nullptr);

  void OnName(std::function<void(const std::string& name)> on_name) { on_name_ = std::move(on_name); }
  void Show(const std::string& name);

  void showPopup() override;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void ReadNames();
  void Take(const QString& name);

  std::function<std::vector<std::string>()> names_;
  std::function<void(const std::string&)> on_name_;
  QString shown_;
  bool typed_ = false;
};

}  // namespace velmar::shell
