#pragma once

#include <QGroupBox>
#include <optional>

#include "acoustics/bands.h"
#include "presentation/drawing/compared_looks.h"
#include "presentation/texts/compared_curves.h"
#include "shell/structures/library_tree.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace velmar::structures {

class TestChooser;

/// One side of the comparison: chooses a structure and says whether its curve is laid over the chart.
class ComparisonPanel : public QGroupBox {
  Q_OBJECT

 public:
  /// Object names and words of the side.
  struct Look {
    const char* frame = "";
    const char* check = "";
    const char* tree = "";
    const char* keywords = "";
    const char* list = "";
    const char* description = "";
    const char* database = "";
    const char* rating = "";
    const char* add = "";
    MessageRow caption{};
    MessageRow check_caption{};
    presentation::ComparedLook look{};  ///< of the curve
    std::vector<TreeNode> nodes{};
  };

  ComparisonPanel(const shell::WindowTools& tools, LibrarySource source, const Look& look,
                  QWidget* parent = nullptr);

  bool IsTicked() const;
  /// No curve of this side is wanted any more.
  void Untick();
  /// The curve of the chosen structure; nothing without one that has a curve.
  const std::optional<presentation::ComparedCurve>& Curve() const { return curve_; }
  /// The name of the chosen structure while the side is ticked, otherwise empty.
  std::string Name() const;
  /// Whether curves can be added; @param full why they cannot: the comparison holds no more.
  void OfferToAdd(bool full);
  /// Nothing ticked, nothing chosen.
  void Reset();
  /// Reads the databases anew; what is chosen stays chosen while it is still there.
  void Refresh();
  TestChooser* Chooser() const { return chooser_; }

 signals:
  /// The curve of this side came or went, or is another.
  void Changed();
  /// The curve of the chosen structure is to be kept in the comparison.
  void AddWanted();

 private:
  void Show(const std::optional<MeasuredTest>& test);

  shell::WindowTools tools_;
  std::optional<presentation::ComparedCurve> curve_{};
  bool full_ = false;
  QCheckBox* check_ = nullptr;
  TestChooser* chooser_ = nullptr;
  QLabel* database_ = nullptr;
  QLabel* rating_ = nullptr;
  QPushButton* add_ = nullptr;
  QPlainTextEdit* description_ = nullptr;
};

}  // namespace velmar::structures
