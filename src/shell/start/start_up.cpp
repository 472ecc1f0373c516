#include "shell/start/start_up.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLibraryInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>
#include <QUrl>
#include <array>
#include <memory>
#include <stdexcept>

#include "application/accuracy_file.h"
#include "application/environment.h"
#include "application/material_sources.h"
#include "application/projects.h"
#include "calculation/edits/material_choice.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/commands/material_commands.h"
#include "shell/commands/paper_commands.h"
#include "shell/commands/report_commands.h"
#include "shell/commands/structure_commands.h"
#include "shell/main_window/main_window.h"
#include "shell/project/lost_work_dialog.h"
#include "shell/start/desktop_application.h"
#include "shell/start/loader_window.h"
#include "shell/start/store_opening.h"
#include "shell/windows/dark_outlines.h"
#include "shell/windows/long_work.h"
#include "shell/windows/phrases.h"
#include "storage/configuration/documents_folder.h"
#include "storage/configuration/program_folder.h"
#include "storage/materials/material_store.h"
#include "storage/project/project_writer.h"

namespace velmar::shell {
namespace {

using elements::MaterialFamily;

constexpr const char* kMaintenanceProgram = "DB_sperimentale.EXE";

struct Family {
  MaterialFamily family{};
  MessageRow title{};
};
constexpr std::array kFamilies = {Family{MaterialFamily::kStructural, kStructuralMaterialsRow},
                                  Family{MaterialFamily::kFibrous, kFibrousMaterialsRow},
                                  Family{MaterialFamily::kResilient, kResilientMaterialsRow}};

WindowPlaces Places() {
  const std::filesystem::path program = storage::ProgramFolder();
  const auto folder = [](QStandardPaths::StandardLocation location) {
    return std::filesystem::path(QStandardPaths::writableLocation(location).toStdString());
  };
  WindowPlaces places;
  places.manual = storage::ManualFile(program);
  places.manual_text = storage::ManualText(program);
  places.maintenance_program = program / kMaintenanceProgram;
  if (const auto shipped = storage::ShippedDataFolder(program)) places.examples = *shipped / "Examples";
  places.documents = storage::CartellaDocumenti();
  places.settings = folder(QStandardPaths::AppConfigLocation) / "finestra.ini";
  places.templates = folder(QStandardPaths::AppDataLocation) / "modelli";
  places.recovery = folder(QStandardPaths::AppDataLocation) / "recupero";
  return places;
}

/// What came with the program; where it cannot be read nothing is known, and nothing is claimed.
validation::Accuracy ShippedAccuracy() {
  const auto shipped = storage::ShippedDataFolder(storage::ProgramFolder());
  if (!shipped) return {};
  try {
    return application::ReadAccuracy(*shipped / application::kValidationFolder /
                                     application::kPredictionsFile);
  } catch (const std::runtime_error& failure) {
    qWarning("%s", failure.what());
    return {};
  }
}

template <typename Material>
std::optional<elements::MaterialRecord<Material>> FirstRecord(const storage::MaterialStore& store) {
  const auto row = store.First<Material>();
  if (!row) return std::nullopt;
  return row->record;
}

template <typename Record>
const Record* Pointer(const std::optional<Record>& record) {
  return record ? &*record : nullptr;
}

/// The set-up of a fresh start, without materials: captions of the project information.
elements::Setup CaptionedSetup(const presentation::Words& words) {
  elements::Setup setup;
  for (std::size_t row = 0; row < elements::kCaptionedInformationRows; ++row)
    setup.information.at(row).caption = words(elements::kInformationCaptions.at(row));
  return setup;
}

/// `setup` with the first selection of every layer.
elements::Setup WithFirstMaterials(elements::Setup setup, const storage::MaterialStore& store) {
  const auto structural = FirstRecord<elements::StructuralMaterial>(store);
  const auto fibrous = FirstRecord<elements::FibrousMaterial>(store);
  const auto resilient = FirstRecord<elements::ResilientMaterial>(store);
  calculation::SelectFirstMaterials(setup, Pointer(structural), Pointer(fibrous), Pointer(resilient));
  return setup;
}

DocumentServices DocumentsOf(const application::Environment& environment, const presentation::Words& words) {
  const storage::Configuration& configuration = environment.configuration;
  DocumentServices documents{
      .places = {.templates = configuration.CartellaTemplates(),
                 .data_folder = configuration.LeggiCartellaDati(),
                 .catalogue = configuration.PercorsoInterfMess()},
      .sources = application::MaterialSourcesIn(configuration.PercorsoDatabase(), words)};
  if (environment.shipped) {
    documents.places.shipped_templates = *environment.shipped / "Templates";
    documents.places.shipped_catalogue = *environment.shipped / storage::kMessageDatabase;
  }
  return documents;
}

/// Everything that lives as long as the window.
struct Desktop {
  explicit Desktop(application::Environment opened)
      : environment(std::move(opened)), store(environment.configuration.PercorsoDatabase()) {
    services.words = [this](MessageRow row) { return environment.messages.Text(row); };
    services.boxes = ScreenBoxes(services.words);
    services.version = QApplication::applicationVersion();
    services.places = Places();
    services.materials =
        application::ForgivingLookup(storage::MaterialLookupIn(store.File(), storage::kWindowPatienceMs),
                                     [this](const Failure& failure) { Tell(failure.UserMessage()); });
    services.material_names = [this](MaterialFamily family) {
      std::vector<storage::ListedMaterial> names;
      RunBeside([&] { names = store.List(family); });
      return names;
    };
    services.read_project = [this](const std::filesystem::path& file) {
      storage::OpenedProject project = application::OpenProject(file, open.Setup(), services.materials);
      unknown = project.setup.calculation ? storage::StoredCalculation() : project.stored;
      return std::move(project.setup);
    };
    services.look_at_project = [file = store.File()](const std::filesystem::path& project,
                                                     const elements::Setup& current) {
      return application::OpenProject(
                 project, current,
                 application::ForgivingLookup(storage::MaterialLookupIn(file), [](const Failure&) {}))
          .setup;
    };
    services.write_project = [this](const std::filesystem::path& file, const elements::Setup& setup) {
      storage::SaveProject(file, setup, unknown);
    };
    services.accuracy = validation::KnownAccuracy([] { return ShippedAccuracy(); });
    services.new_setup = [this] { return NewSetup(); };
    services.ask_about_lost_work = [this](const std::vector<LostWork>& works) {
      LostWorkDialog dialog(works, services.words, QApplication::activeWindow());
      dialog.exec();
      return dialog.Answer();
    };
    structure_commands = std::make_unique<StructureCommands>(
        open, services, services.places.settings,
        structures::LibraryPlaces{environment.configuration.CartellaLibreria(),
                                  environment.configuration.CartellaImmagini(),
                                  environment.configuration.PercorsoDatabaseTeorico()},
        std::make_shared<storage::AccessSession>(
            storage::AccessReader{storage::AccessReaderProgram(storage::ProgramFolder()).value_or("")}));
    material_commands = std::make_unique<MaterialCommands>(open, services, services.places.settings,
                                                           store.File(), EditorOf(store, services.words));
    documents = DocumentsOf(environment, services.words);
    paper_commands = std::make_unique<PaperCommands>(PaperBoxes(services), documents);
    report_commands = std::make_unique<ReportCommands>(documents, services.materials);
    services.documents = &documents;
    services.Add(*structure_commands);
    services.Add(*material_commands);
    services.paper_commands = paper_commands.get();
    services.report_commands = report_commands.get();
    services.open_address = [](const QString& address) { return QDesktopServices::openUrl(QUrl(address)); };
    services.start_program = [](const std::filesystem::path& program) {
      return QProcess::startDetached(QString::fromStdString(program.string()), {});
    };
  }

  void Tell(const Message& message) const {
    services.boxes.tell(Tone::kCritical, Text(services.words, message));
  }

  /// Captions and first materials; where these cannot be read, which is told, captions alone.
  elements::Setup NewSetup() const {
    elements::Setup setup = CaptionedSetup(services.words);
    try {
      setup = WithFirstMaterials(setup, store);
    } catch (const Failure& failure) {
      Tell(failure.UserMessage());
    }
    return setup;
  }

  application::Environment environment;
  calculation::OpenCalculation open;
  storage::MaterialStore store;
  storage::StoredCalculation unknown{};
  WindowServices services{open};
  DocumentServices documents{};
  std::unique_ptr<StructureCommands> structure_commands{};
  std::unique_ptr<MaterialCommands> material_commands{};
  std::unique_ptr<PaperCommands> paper_commands{};
  std::unique_ptr<ReportCommands> report_commands{};
};

/// `CaricaDatabase`. Failures are told; the window opens with what there is.
void Load(Desktop& desktop, LoaderWindow& loader) {
  desktop.open.Replace(CaptionedSetup(desktop.services.words));
  loader.show();
  if (!OpenStoresOnScreen(desktop.environment, desktop.services.boxes, loader).materials) return;
  try {
    int done = 0;
    for (const Family& family : kFamilies) {
      loader.ShowProgress(family.title, desktop.store.List(family.family).size(), ++done,
                          static_cast<int>(kFamilies.size()));
    }
  } catch (const Failure& failure) {
    loader.hide();
    return desktop.Tell(failure.UserMessage());
  }
  desktop.open.Replace(desktop.NewSetup());
}

int RunWindow(DesktopApplication& application, Desktop& desktop) {
  for (const Message& warning : desktop.environment.warnings) desktop.Tell(warning);
  {
    LoaderWindow loader(desktop.services.words, desktop.services.version);
    Load(desktop, loader);
  }
  MainWindow window(desktop.services);
  QObject::connect(&application, &DesktopApplication::Failed, &window, &MainWindow::SurviveFailure);
  window.show();
  // Boxes of the start stand over a window that is there.
  QTimer::singleShot(0, &window, [&window, &application] {
    window.OfferRecovery();
    if (const QStringList arguments = application.arguments(); arguments.size() > 1)
      window.OpenProject(arguments.at(1).toStdString());
  });
  return QApplication::exec();
}

/// The toolkit's own words - those of file, print and context dialogs - in `language`, as the catalogue calls
/// it. A language that the toolkit lacks leaves them in English.
void LoadToolkitWords(QTranslator& words, const std::string& language) {
  const QString wanted = FromUtf8(language).toLower();
  const QString locale = wanted == "italiano" ? "it" : wanted == "english" ? "en" : QString();
  if (!locale.isEmpty())
    (void)words.load("qtbase_" + locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

}  // namespace

int RunDesktop(DesktopApplication& application) {
  AddDarkOutlines(application);
  try {
    Desktop desktop(OpenEnvironmentOnScreen(QApplication::applicationVersion()));
    QTranslator toolkit_words;
    LoadToolkitWords(toolkit_words, desktop.environment.configuration.LeggiLingua());
    if (!toolkit_words.isEmpty()) application.installTranslator(&toolkit_words);
    return RunWindow(application, desktop);
  } catch (const std::exception& failure) {
    TellWithoutCatalogue(failure);
    return 1;
  }
}

}  // namespace velmar::shell
