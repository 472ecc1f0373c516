#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "presentation/texts/compared_curves.h"
#include "shell/windows/window_tools.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace velmar::structures {

/// The variants of the open project, to be added to a comparison.
class VariantsPanel : public QWidget {
  Q_OBJECT

 public:
  explicit VariantsPanel(const shell::WindowTools& tools, bool is_impact, QWidget* parent = nullptr);

  /// Offers `variants`; the one that is chosen stays chosen.
  void Show(const std::vector<presentation::ComparedCurve>& variants);
  /// Whether curves can be added; @param full why they cannot: the comparison holds no more.
  void OfferToAdd(bool full);
  /// The variant that is chosen.
  std::optional<presentation::ComparedCurve> Chosen() const;

 signals:
  /// The chosen variant is to be kept in the comparison.
  void AddWanted();

 private:
  shell::WindowTools tools_;
  bool is_impact_;
  std::vector<presentation::ComparedCurve> variants_{};
  bool full_ = false;
  QLabel* none_ = nullptr;
  QListWidget* list_ = nullptr;
  QPushButton* add_ = nullptr;
};

}  // namespace velmar::structures
