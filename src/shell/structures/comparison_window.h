#pragma once

#include <QDialog>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "acoustics/bands.h"
#include "elements/catalogue.h"
#include "presentation/drawing/curve_chart.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QSplitter;

namespace velmar::structures {

class ComparedCurvesList;
class ComparisonPanel;
class VariantsPanel;

/// What is laid over the main chart. A side that is ticked has the spectrum of its structure, and none while
/// no structure is chosen or the one that is has no curve; and the structure's name.
struct Overlay {
  std::optional<acoustics::Spectrum> laboratory{};
  std::optional<acoustics::Spectrum> in_situ{};
  bool laboratory_in_octaves = false;  ///< the spectrum holds octaves, each over its three thirds
  bool in_situ_in_octaves = false;
  std::string laboratory_name{};
  std::string in_situ_name{};
  std::vector<presentation::FurtherCurve> added{};  ///< curves that were kept in the comparison
  presentation::Comparison comparison{};            ///< all that is compared, with the calculated curve
};

/// Lays `overlay` over `chart`.
void LayOver(presentation::CurveChart& chart, const Overlay& overlay);

/// What the open project has for a comparison.
struct ComparedWork {
  std::optional<presentation::ComparedCurve> calculated{};
  std::vector<presentation::ComparedCurve> variants{};
};

/// "VELMARpro - confronto strutture" (`Form8`): measured or calculated structures, and the project's
/// variants, beside the result, with the ratings of each and the differences from one of them. The window
/// draws nothing into the main chart: it hands what is to be laid over it to who does.
class ComparisonWindow : public QDialog {
 public:
  using Draw = std::function<void(const Overlay&)>;
  /// Where it stands beside the main window, pixels.
  static constexpr int kPreferredWidth = 460;

  /// @param family of the open calculation; decides which databases are offered
  /// @param draw redraws the main chart; called after every change of what is compared, never by closing
  ComparisonWindow(shell::WindowTools tools, const LibrarySource& source, elements::Family family, Draw draw,
                   QWidget* parent = nullptr);
  ~ComparisonWindow() override;

  /// The project has `work` from now on. Draws nothing: who calls this does.
  void Follow(const ComparedWork& work);
  /// What is to be laid over the chart now.
  Overlay Current() const;
  /// The result was invalidated: the window closes.
  void ResultGone() { close(); }

  /// However it closes: nothing stays ticked or chosen.
  void done(int result) override;

 private:
  void MakeSides(const LibrarySource& source, elements::Family family);
  void ShowSides();
  void OfferToAdd();

  shell::WindowTools tools_;
  Draw draw_;
  QSplitter* halves_ = nullptr;
  ComparedCurvesList* curves_ = nullptr;
  ComparisonPanel* laboratory_ = nullptr;
  ComparisonPanel* in_situ_ = nullptr;
  VariantsPanel* variants_ = nullptr;
};

}  // namespace velmar::structures
