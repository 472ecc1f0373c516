#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QThreadPool>
#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "calculation/runs/run.h"
#include "elements/catalogue.h"
#include "elements/setup.h"
#include "presentation/drawing/section.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

/// What a project is, as a tile or a list tells it: what opening and running it would show.
struct ProjectGlance {
  bool readable = false;
  std::optional<elements::Calculation> calculation{};
  presentation::Section section{};
  std::string title{};              ///< the project's own words for itself
  double surface_mass_kg_m2 = 0.0;  ///< 0 where the calculation knows none, as for a facade
  calculation::RunOutcome outcome{};
};

/// "Parete singola: Laterizio", by menu and without its relation; empty where there is none.
QString KindOf(const ProjectGlance& glance, const presentation::Words& words);
/// "Rw 54 dB"; behind the sign of warning why there is none.
QString RatingOf(const ProjectGlance& glance, const presentation::Words& words);
/// Why there is no rating, in whole sentences; empty where there is one.
QString HindranceOf(const ProjectGlance& glance, const presentation::Words& words);

/// Reads and calculates projects that are not open, one after the other and beside the window, which never
/// waits for them.
class ProjectGlances : public QObject {
  Q_OBJECT
 public:
  /// Reads a project without opening it; called beside the window. @throws std::exception when it cannot
  using Reader =
      std::function<elements::Setup(const std::filesystem::path& project, const elements::Setup& current)>;

  explicit ProjectGlances(Reader read, QObject* parent = nullptr);
  /// Waits for the one under way.
  ~ProjectGlances() override;

  /// Looks at `projects` anew, in this order, as they would open over `current`; what was still to be looked
  /// at before is forgotten.
  void LookAt(const std::vector<std::filesystem::path>& projects, elements::Setup current);
  void Stop() { waiting_.clear(); }

 signals:
  void Seen(const std::filesystem::path& project, const velmar::shell::ProjectGlance& glance);

 private:
  void Begin();
  void Finish();

  Reader read_;
  elements::Setup current_{};
  std::deque<std::filesystem::path> waiting_{};
  std::filesystem::path under_way_{};
  bool forgotten_ = false;  ///< nobody waits any more for the one under way
  QThreadPool thread_{};
  QFutureWatcher<ProjectGlance> watcher_{};
};

}  // namespace velmar::shell
