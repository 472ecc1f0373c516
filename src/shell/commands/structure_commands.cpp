#include "shell/commands/structure_commands.h"

#include <QSettings>
#include <QWidget>
#include <filesystem>

#include "calculation/facade_parts.h"
#include "elements/catalogue.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "presentation/texts/descriptions.h"
#include "shell/commands/command_table.h"
#include "shell/commands/comparison_command.h"
#include "shell/fields/phrases.h"
#include "shell/pages/element_parts.h"
#include "shell/structures/measured_library_window.h"
#include "shell/structures/saved_results_window.h"
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

}  // namespace

class StructureCommands::Windows {
 public:
  Windows(WindowServices& services, const structures::LibraryPlaces& places,
          std::shared_ptr<storage::AccessSession> session)
      : services_(services),
        results_file_(places.results),
        results_(structures::StoredResults(places.results)),
        library_(structures::MeasuredLibrary(places, std::move(session))) {
    tools_.words = services.words;
    tools_.ask = services.boxes.ask;
    tools_.tell = [tell = services.boxes.tell](const QString& text) { tell(Tone::kCritical, text); };
    if (!services.places.settings.empty()) {
      const std::filesystem::path file = services.places.settings.parent_path() / "strutture.ini";
      memory_ = std::make_unique<QSettings>(QString::fromStdString(file.string()), QSettings::IniFormat);
      tools_.memory = memory_.get();
    }
    comparison_ = std::make_unique<ComparisonCommand>(services_, tools_, library_);
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    try {
      for (structures::ResultEntry& entry : results_.list(ResultKind::kAirborne))
        names.push_back(std::move(entry.name));
    } catch (const Failure&) {
      return {};  // the lists are filled often: only who opens the results window is told
    }
    return names;
  }

  std::optional<calculation::FacadePart> Find(const std::string& name) const {
    std::optional<calculation::FacadePart> part;
    tools_.Try([&] { part = results_.find(ResultKind::kAirborne, name); });
    return part;
  }

  void ShowResults(QWidget* parent, const std::optional<ElementPick>& pick) {
    SavedResultsWindow::Listener listener;
    if (pick) listener.take = [this, pick](const calculation::FacadePart& part) { Take(*pick, part); };
    ShowAndWait(new SavedResultsWindow(tools_, results_, std::move(listener), parent));
  }

  /// Opens the library for an element of the calculation.
  void PickMeasured(QWidget* parent, const ElementPick& pick) {
    ShowLibrary(parent,
                {.purpose = pick.component == 0 ? LibraryPurpose::kOpaquePart : LibraryPurpose::kComponents,
                 .component = pick.component,
                 .take = [this, pick](const calculation::FacadePart& part) { Take(pick, part); }});
  }

  void ShowLibrary(QWidget* parent, structures::MeasuredTarget target) {
    ShowAndWait(new MeasuredLibraryWindow(tools_, library_, std::move(target), parent));
  }

  /// `Salva`: stores the result that stands under a name that is asked for.
  void Store() {
    const auto& open = services_.open;
    const elements::Setup& setup = open.Setup();
    if (!setup.calculation || !open.Result()) return;
    const QString name =
        services_.boxes.ask_name({Text(services_.words, kSaveTitleRow), Text(services_.words, kSavePromptRow),
                                  FromUtf8(presentation::ProposedName(setup, services_.words))});
    if (name.trimmed().isEmpty()) return;
    tools_.Try([&] {
      const storage::SavedResult row =
          storage::ResultToSave(setup, *open.Result(),
                                {.name = ToUtf8(name.trimmed()),
                                 .description = presentation::ResultDescription(setup, services_.words),
                                 .thickness_mm = open.CurrentTotals().thickness_mm,
                                 .mass_kg_m2 = open.CurrentTotals().surface_mass_kg_m2});
      storage::ResultsStore store(results_file_);
      const storage::SaveStatus status = store.Save(storage::TableFor(RowOf(*setup.calculation).family), row);
      if (status == storage::SaveStatus::kNameExists) tools_.tell(Text(services_.words, kResultExistsRow));
      if (status == storage::SaveStatus::kBadName) tools_.tell(Text(services_.words, kBadResultNameRow));
    });
  }

  ComparisonCommand& Comparison() { return *comparison_; }

 private:
  void Take(const ElementPick& pick, const calculation::FacadePart& part) {
    services_.open.Edit([&](elements::Setup& setup) { TakePart(setup, pick.component, part); });
  }

  WindowServices& services_;
  std::filesystem::path results_file_;
  WindowTools tools_;
  structures::ResultSource results_;
  structures::LibrarySource library_;
  std::unique_ptr<QSettings> memory_;
  std::unique_ptr<ComparisonCommand> comparison_;
};

StructureCommands::StructureCommands(WindowServices& services, const structures::LibraryPlaces& places,
                                     std::shared_ptr<storage::AccessSession> session)
    : windows_(std::make_unique<Windows>(services, places, std::move(session))) {
  Windows* windows = windows_.get();
  services.saved_results = [windows] { return windows->Names(); };
  services.saved_result = [windows](const std::string& name) { return windows->Find(name); };
  services.pick_saved_result = [windows](QWidget* parent, const ElementPick& pick) {
    windows->ShowResults(parent, pick);
  };
  services.pick_measured = [windows](QWidget* parent, const ElementPick& pick) {
    windows->PickMeasured(parent, pick);
  };
  services.command_windows[CommandId::kStoreResult] = [windows](QWidget*) { windows->Store(); };
  services.command_windows[CommandId::kSavedResults] = [windows](QWidget* parent) {
    windows->ShowResults(parent, std::nullopt);
  };
  services.command_windows[CommandId::kMeasuredRw] = [windows](QWidget* parent) {
    windows->ShowLibrary(parent, {.purpose = LibraryPurpose::kAirborneData});
  };
  services.command_windows[CommandId::kMeasuredLnw] = [windows](QWidget* parent) {
    windows->ShowLibrary(parent, {.purpose = LibraryPurpose::kImpactData});
  };
  services.command_windows[CommandId::kCompare] = [windows](QWidget* parent) {
    windows->Comparison().Show(parent, Qt::WindowModal);
  };
  services.command_windows[CommandId::kCompareBeside] = [windows](QWidget* parent) {
    windows->Comparison().Show(parent, Qt::NonModal);
  };
  services.lay_over = [windows](presentation::CurveChart& chart) { windows->Comparison().LayOver(chart); };
  services.result_gone = [windows, before = services.result_gone] {
    if (before) before();
    windows->Comparison().ResultGone();
  };
}

StructureCommands::~StructureCommands() = default;

}  // namespace velmar::shell
