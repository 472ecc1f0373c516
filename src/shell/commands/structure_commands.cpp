#include "shell/commands/structure_commands.h"

#include <QWidget>
#include <utility>

#include "calculation/edits/facade_parts.h"
#include "calculation/runs/facade_overview.h"
#include "elements/catalogue.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/texts/descriptions.h"
#include "presentation/texts/result_notes.h"
#include "shell/page_parts/element_parts.h"
#include "shell/structures/saved_results_window.h"
#include "shell/windows/long_work.h"
#include "shell/windows/phrases.h"
#include "storage/results/result_to_save.h"
#include "storage/results/results_store.h"

namespace velmar::shell {
namespace {

using structures::LibraryPurpose;
using structures::MeasuredLibraryWindow;
using structures::ResultKind;
using structures::SavedResultsWindow;

/// Shows `window` above the main window, which waits until it is closed.
void ShowAndWait(QDialog* window) {
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowModality(Qt::WindowModal);
  window->show();
}

/// What the open calculation reads of a measured part: a facade its bands, or in its simplified form the
/// rating alone.
structures::TargetNeeds NeedsOf(const elements::Setup& setup) {
  const bool facade = setup.calculation && RowOf(*setup.calculation).family == elements::Family::kFacade;
  if (!facade) return structures::TargetNeeds::kNothing;
  return setup.facade.simplified ? structures::TargetNeeds::kRating : structures::TargetNeeds::kThirds;
}

}  // namespace

StructureCommands::StructureCommands(calculation::OpenCalculation& open, const Speech& speech,
                                     const std::filesystem::path& settings,
                                     const structures::LibraryPlaces& places,
                                     std::shared_ptr<storage::AccessSession> session)
    : open_(open),
      speech_(speech),
      results_file_(places.results),
      own_(speech, settings, "strutture.ini"),
      results_(structures::StoredResults(places.results)),
      library_(structures::MeasuredLibrary(places, std::move(session))),
      comparison_(open, own_.tools, library_) {}

void StructureCommands::Serve(PageServices& pages) {
  pages.saved_results = [this] { return Names(); };
  pages.saved_result = [this](const std::string& name) { return Find(name); };
  pages.pick_saved_result = [this](QWidget* parent, const ElementPick& pick) {
    PickSavedResult(parent, pick);
  };
  pages.pick_measured = [this](QWidget* parent, const ElementPick& pick) { PickMeasured(parent, pick); };
}

std::vector<std::string> StructureCommands::Names() const {
  std::vector<std::string> names;
  try {
    for (structures::ResultEntry& entry : results_.list(ResultKind::kAirborne))
      names.push_back(std::move(entry.name));
  } catch (const Failure&) {
    return {};  // the lists are filled often: only who opens the results window is told
  }
  return names;
}

std::optional<calculation::FacadePart> StructureCommands::Find(const std::string& name) const {
  std::optional<calculation::FacadePart> part;
  own_.tools.Try([&] { part = results_.find(ResultKind::kAirborne, name); });
  return part;
}

void StructureCommands::Take(const ElementPick& pick, const calculation::FacadePart& part) {
  open_.Edit([&](elements::Setup& setup) {
    while (setup.facade.Count() < pick.component) calculation::AddComponent(setup);
    TakePart(setup, pick.component, part);
  });
}

void StructureCommands::ShowSavedResults(QWidget* parent) {
  ShowAndWait(new SavedResultsWindow(own_.tools, results_, SavedResultsWindow::Purpose::kList, parent));
}

void StructureCommands::PickSavedResult(QWidget* parent, const ElementPick& pick) {
  auto* window = new SavedResultsWindow(own_.tools, results_, SavedResultsWindow::Purpose::kTake, parent);
  connect(window, &SavedResultsWindow::Taken, this,
          [this, pick](const calculation::FacadePart& part) { Take(pick, part); });
  ShowAndWait(window);
}

void StructureCommands::PickMeasured(QWidget* parent, const ElementPick& pick) {
  ShowLibrary(parent,
              {.purpose = pick.component == 0 ? LibraryPurpose::kOpaquePart : LibraryPurpose::kComponents,
               .component = pick.component,
               .needs = NeedsOf(open_.Setup()),
               .take = [this, pick](const calculation::FacadePart& part) { Take(pick, part); }});
}

void StructureCommands::ShowLibrary(QWidget* parent, structures::MeasuredTarget target) {
  ShowAndWait(new MeasuredLibraryWindow(own_.tools, library_, std::move(target), parent));
}

void StructureCommands::ShowAirborneData(QWidget* parent) {
  ShowLibrary(parent, {.purpose = LibraryPurpose::kAirborneData});
}

void StructureCommands::ShowImpactData(QWidget* parent) {
  ShowLibrary(parent, {.purpose = LibraryPurpose::kImpactData});
}

void StructureCommands::Compare(QWidget* parent) { comparison_.Show(parent); }

void StructureCommands::Store(QWidget* /*parent*/) {
  const elements::Setup& setup = open_.Setup();
  if (!setup.calculation || !open_.Result()) return;
  const QString name =
      speech_.boxes.ask_name({Text(speech_.words, kSaveTitleRow), Text(speech_.words, kSavePromptRow),
                              FromUtf8(presentation::ProposedName(setup, speech_.words))});
  if (name.trimmed().isEmpty()) return;
  own_.tools.Try([&] {
    const storage::SavedResult row =
        storage::ResultToSave(setup, *open_.Result(),
                              {.name = ToUtf8(name.trimmed()),
                               .description = presentation::ResultDescription(setup, speech_.words),
                               .thickness_mm = open_.CurrentTotals().thickness_mm,
                               .mass_kg_m2 = open_.CurrentTotals().surface_mass_kg_m2,
                               .messages = presentation::Joined(presentation::RangeNotes(
                                   *setup.calculation, *open_.Result(), speech_.words))});
    storage::ResultsStore store(results_file_);
    storage::SaveStatus status{};
    RunBeside([&] { status = store.Save(storage::TableFor(RowOf(*setup.calculation).family), row); });
    if (status == storage::SaveStatus::kNameExists) own_.tools.Tell(Text(speech_.words, kResultExistsRow));
    if (status == storage::SaveStatus::kBadName) own_.tools.Tell(Text(speech_.words, kBadResultNameRow));
  });
}

}  // namespace velmar::shell
