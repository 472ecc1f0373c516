#pragma once

#include <QColor>
#include <QGroupBox>
#include <optional>

#include "acoustics/bands.h"
#include "shell/structures/library_tree.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;

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
    MessageRow caption{};
    MessageRow check_caption{};
    QColor colour{};  ///< of the curve
    std::vector<TreeNode> nodes{};
  };

  ComparisonPanel(const shell::WindowTools& tools, LibrarySource source, const Look& look,
                  QWidget* parent = nullptr);

  bool IsTicked() const;
  /// The chosen structure's bands in dB, 0 where it has none; all 0 without one.
  const acoustics::Spectrum& Bands() const { return bands_; }
  /// Whether Bands() are octaves, each over its three thirds: the structure has no thirds.
  bool AreOctaves() const { return are_octaves_; }
  /// The name of the chosen structure while the side is ticked, otherwise empty.
  std::string Name() const;
  /// Nothing ticked, nothing chosen.
  void Reset();
  /// Reads the databases anew; what is chosen stays chosen while it is still there.
  void Refresh();
  TestChooser* Chooser() const { return chooser_; }

 signals:
  /// What is laid over the chart is another now.
  void Changed();

 private:
  void Show(const std::optional<MeasuredTest>& test);

  shell::WindowTools tools_;
  acoustics::Spectrum bands_{};
  bool are_octaves_ = false;
  QCheckBox* check_ = nullptr;
  TestChooser* chooser_ = nullptr;
  QLabel* database_ = nullptr;
  QLabel* rating_ = nullptr;
  QPlainTextEdit* description_ = nullptr;
};

}  // namespace velmar::structures
