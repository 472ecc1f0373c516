#pragma once

#include <QDialog>
#include <functional>
#include <optional>
#include <string>

#include "acoustics/bands.h"
#include "elements/catalogue.h"
#include "presentation/drawing/curve_chart.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

class QSplitter;

namespace velmar::structures {

class ComparisonPanel;

/// What is laid over the main chart. A side that is ticked has the spectrum of its structure, and none while
/// no structure is chosen or the one that is has no curve; and the structure's name.
struct Overlay {
  std::optional<acoustics::Spectrum> laboratory{};
  std::optional<acoustics::Spectrum> in_situ{};
  bool laboratory_in_octaves = false;  ///< the spectrum holds octaves, each over its three thirds
  bool in_situ_in_octaves = false;
  std::string laboratory_name{};
  std::string in_situ_name{};

  bool operator==(const Overlay&) const = default;
};

/// Lays `overlay` over `chart`.
void LayOver(presentation::CurveChart& chart, const Overlay& overlay);

/// "VELMARpro - confronto strutture" (`Form8`): measured or calculated structures beside the result. The
/// window draws nothing: it hands what is to be laid over to the main chart.
class ComparisonWindow : public QDialog {
 public:
  using Draw = std::function<void(const Overlay&)>;
  /// Where it stands beside the main window, pixels.
  static constexpr int kPreferredWidth = 460;

  /// @param family of the open calculation; decides which databases are offered
  /// @param draw redraws the main chart; called after every change of a ticked side, never by closing
  ComparisonWindow(shell::WindowTools tools, const LibrarySource& source, elements::Family family, Draw draw,
                   QWidget* parent = nullptr);
  ~ComparisonWindow() override;

  /// The result was invalidated: the window closes.
  void ResultGone() { close(); }

 protected:
  /// However it closes: nothing stays ticked or chosen, and the chart stays as last drawn.
  void hideEvent(QHideEvent* event) override;
  /// The sides stand beside each other, or below where that is too narrow.
  void resizeEvent(QResizeEvent* event) override;

 private:
  Overlay Current() const;

  shell::WindowTools tools_;
  Draw draw_;
  QSplitter* sides_ = nullptr;
  ComparisonPanel* laboratory_ = nullptr;
  ComparisonPanel* in_situ_ = nullptr;
};

}  // namespace velmar::structures
