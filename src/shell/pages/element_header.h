#pragma once

#include <QWidget>
#include <array>

#include "shell/page_parts/page_context.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;
class QVBoxLayout;

namespace velmar::shell {

class ChoiceBox;
class NumberField;

/// What stands over the tabs: kind and theory of the element, dimensions, totals, and the fields that belong
/// to the whole element.
class ElementHeader : public QWidget {
  Q_OBJECT

 public:
  explicit ElementHeader(PageContext& context, QWidget* parent = nullptr);

  void Show();

 signals:
  /// The dimensions are to be entered.
  void DimensionsWanted();

 private:
  void AddTexts(QVBoxLayout& column);
  void AddNumbers(QVBoxLayout& column);
  void AddConnections(QVBoxLayout& column);

  PageContext& context_;
  QLabel* element_type_ = nullptr;
  QLabel* theory_ = nullptr;
  QToolButton* dimensions_ = nullptr;
  QLabel* width_ = nullptr;
  QLabel* height_ = nullptr;
  std::array<QWidget*, 3> dimension_labels_{};
  QLabel* area_ = nullptr;
  QWidget* totals_ = nullptr;
  QLabel* thickness_ = nullptr;
  QLabel* mass_ = nullptr;
  QWidget* connections_ = nullptr;
  QLabel* support_label_ = nullptr;
  NumberField* support_ = nullptr;
  QLabel* hanger_label_ = nullptr;
  ChoiceBox* hanger_ = nullptr;
  QCheckBox* decoupled_ = nullptr;
};

}  // namespace velmar::shell
