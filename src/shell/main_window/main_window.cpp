#include "shell/main_window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "calculation/select_calculation.h"
#include "foundation/message_rows.h"
#include "shell/commands/edit_menu.h"
#include "shell/commands/help_commands.h"
#include "shell/commands/menus.h"
#include "shell/commands/run_command.h"
#include "shell/commands/tool_bar.h"
#include "shell/fields/icons.h"
#include "shell/fields/material_change.h"
#include "shell/fields/phrases.h"
#include "shell/main_window/start_screen.h"
#include "shell/pages/element_header.h"
#include "shell/pages/input_tabs.h"
#include "shell/project/dimension_dialog.h"
#include "shell/project/project_information_dialog.h"
#include "shell/results/results_panel.h"

namespace velmar::shell {
namespace {

constexpr int kRecoveryDelayMs = 2000;
constexpr QSize kFirstSize{1280, 720};
constexpr int kInputsWidth = 600;
constexpr int kNarrowestInputs = 520;

/// What stands ready for a command. The generic linings give ratings alone.
Needs StateOf(const calculation::OpenCalculation& open) {
  const auto& calculation = open.Setup().calculation;
  if (!calculation) return Needs::kNothing;
  if (!open.Result()) return Needs::kCalculation;
  return RowOf(*calculation).model == elements::Model::kGenericLining ? Needs::kResult : Needs::kSpectrum;
}

QString DroppedProject(const QMimeData& mime) {
  if (mime.urls().size() != 1) return {};
  const QString file = mime.urls().constFirst().toLocalFile();
  return file.endsWith(".drav", Qt::CaseInsensitive) ? file : QString();
}

}  // namespace

MainWindow::MainWindow(const WindowServices& services, QWidget* parent)
    : QMainWindow(parent),
      services_(services),
      materials_(services),
      context_{services.open, services, materials_},
      memory_(services.places.settings),
      recovery_(services, kRecoveryDelayMs),
      files_(services, memory_, recovery_),
      table_(services, [this] { ShowAll(); }),
      commands_(services.words, this, [this](CommandId id) { Execute(id); }),
      calculations_(services.words, this,
                    [this](elements::Calculation calculation) { Choose(calculation); }) {
  setObjectName("Form1");
  setWindowIcon(ProductIcon());
  setAcceptDrops(true);
  recent_ = FillMenuBar(*menuBar(), commands_, calculations_, services.words);
  edit_menu_ = new EditMenu(services.open, services.words, this);
  menuBar()->insertMenu(menuBar()->actions().at(1), edit_menu_);
  connect(qApp, &QApplication::focusChanged, this, [this] { services_.open.EndStep(); });
  tool_bar_ = new CommandToolBar(commands_, calculations_, services.words, this);
  addToolBar(tool_bar_);
  // Shortcuts work whether or not their menu was ever open.
  for (const Command& command : Commands()) addAction(commands_.Of(command.id));
  MakeCentre();
  files_.OnChange([this] {
    setWindowTitle(files_.Caption());
    setWindowFilePath(QString::fromStdString(files_.File().string()));
    ShowProjects();
  });
  services_.open.OnChange([this] { ShowAll(); });
  FollowMaterials();
  setWindowTitle(files_.Caption());
  sides_->setSizes({kInputsWidth, kFirstSize.width() - kInputsWidth});
  sides_arranged_ = memory_.RestoreSizes(*this, *sides_, *results_->Splitter());
  if (!sides_arranged_) resize(kFirstSize);
  ShowProjects();
  ShowAll();
}

MainWindow::~MainWindow() { services_.open.OnChange({}); }

void MainWindow::MakeCentre() {
  auto* inputs = new QWidget;
  inputs->setMinimumWidth(kNarrowestInputs);
  auto* column = new QVBoxLayout(inputs);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  header_ = new ElementHeader(context_, [this] { Execute(CommandId::kDimensions); });
  tabs_ = new InputTabs(context_);
  column->addWidget(header_);
  column->addWidget(tabs_, 1);
  results_ = new ResultsPanel(context_);
  connect(&context_, &PageContext::RowHovered, results_, &ResultsPanel::Highlight);
  results_->OnHover([this](const auto& place) { emit context_.SectionHovered(place); });
  sides_ = new QSplitter(Qt::Horizontal);
  sides_->setChildrenCollapsible(false);
  sides_->addWidget(inputs);
  sides_->addWidget(results_);
  sides_->setStretchFactor(0, 0);
  sides_->setStretchFactor(1, 1);
  start_ = new StartScreen(services_.words, calculations_,
                           {.begin = [this](elements::ElementButton button) { Begin(button); },
                            .open = [this](const std::filesystem::path& file) { OpenProject(file); }});
  centre_ = new QStackedWidget(this);
  centre_->addWidget(start_);
  centre_->addWidget(sides_);
  setCentralWidget(centre_);
}

void MainWindow::Execute(CommandId id) {
  emit context_.SettleAsked();
  switch (id) {
    case CommandId::kOpenProject:
      files_.Open();
      tabs_->FocusFirst();
      return;
    case CommandId::kSaveProject:
      files_.Save();
      return;
    case CommandId::kRun:
      RunOpenCalculation(services_, *this);
      return;
    case CommandId::kShowTable:
      table_.Show(this);
      return;
    case CommandId::kDimensions:
      DimensionDialog(services_.open, services_.words, this).exec();
      return;
    case CommandId::kProjectInformation:
      ProjectInformationDialog(services_.open, services_.words, this).exec();
      return;
    case CommandId::kSingleWalls:
    case CommandId::kDoubleWalls:
    case CommandId::kFloors:
    case CommandId::kFacades:
    case CommandId::kLinings:
    case CommandId::kCeilings:
      Begin(static_cast<elements::ElementButton>(RowOf(id).button));
      return;
    case CommandId::kExitAsking:
      Exit(/*asking=*/true);
      return;
    case CommandId::kExit:
      Exit(/*asking=*/false);
      return;
    default:
      ExecuteElsewhere(id);
  }
}

void MainWindow::ExecuteElsewhere(CommandId id) {
  const auto window = services_.command_windows.find(id);
  if (window != services_.command_windows.end() && window->second) {
    window->second(this);
  } else {
    ExecuteHelpCommand(id, services_, this);
  }
}

void MainWindow::Begin(elements::ElementButton button) {
  const auto& open = services_.open.Setup().calculation;
  if (open && RowOf(*open).button == button) {
    tabs_->ShowFirst();
  } else {
    Choose(FirstOf(button));
  }
}

void MainWindow::Choose(elements::Calculation calculation) {
  tabs_->LayOutAnew();
  context_.Edit(
      [calculation](elements::Setup& setup) { calculation::SelectCalculation(setup, calculation); });
}

void MainWindow::ShowAll() {
  const elements::Setup& setup = services_.open.Setup();
  const bool has_result = services_.open.Result().has_value();
  table_.Follow();
  if (had_result_ && !has_result && services_.result_gone) services_.result_gone();
  had_result_ = has_result;
  recovery_.Follow();
  const Needs state = StateOf(services_.open);
  commands_.Enable(state, table_.IsOpen());
  edit_menu_->Follow();
  tool_bar_->ShowRunDue(state == Needs::kCalculation);
  centre_->setCurrentWidget(setup.calculation ? static_cast<QWidget*>(sides_) : start_);
  if (!setup.calculation) return;
  ArrangeSides();
  calculations_.Mark(*setup.calculation);
  header_->Show();
  tabs_->Show(setup);
  results_->Show();
}

// Only once they have their place on the screen do the sides keep what they are given; what the inputs leave
// goes to the results.
void MainWindow::ArrangeSides() {
  if (sides_arranged_ || !sides_->isVisible()) return;
  sides_arranged_ = true;
  sides_->setGeometry(centre_->rect());
  sides_->setSizes({kInputsWidth, centre_->width() - kInputsWidth});
}

void MainWindow::ShowProjects() {
  const auto recent = memory_.RecentProjects();
  start_->ShowProjects(recent, ProjectsIn(services_.places.examples));
  recent_->clear();
  recent_->setEnabled(!recent.empty());
  for (const std::filesystem::path& project : recent)
    recent_->addAction(QString::fromStdString(project.string()), [this, project] { OpenProject(project); });
  recent_->addSeparator();
  recent_->addAction(Text(services_.words, kForgetRecentRow), [this] {
    memory_.ForgetProjects();
    ShowProjects();
  });
}

void MainWindow::OpenProject(const std::filesystem::path& project) {
  tabs_->LayOutAnew();
  files_.Open(project);
  tabs_->FocusFirst();
}

void MainWindow::OfferRecovery() { files_.OfferRecovery(); }

void MainWindow::FollowMaterials() {
  const MaterialNews* news = services_.material_news;
  if (news == nullptr) return;
  connect(news, &MaterialNews::Changed, this, [this](const MaterialChange& change) {
    materials_.Follow(change);
    ShowAll();
  });
  connect(news, &MaterialNews::Removed, this,
          [this](elements::MaterialFamily family, const std::string& name) {
            materials_.Forget(family, name);
            ShowAll();
          });
  connect(news, &MaterialNews::Reread, this, [this] {
    materials_.Reload();
    ShowAll();
  });
}

// The menu entry and the closing of the window do not ask: unsaved work is offered again at the next start.
void MainWindow::Exit(bool asking) {
  if (asking) {
    const bool saved = services_.open.IsSaved();
    if (!files_.LeaveUnsaved()) return;
    if (!saved) recovery_.Discard();
  }
  close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  memory_.SaveSizes(*this, *sides_, *results_->Splitter());
  recovery_.WriteNow();
  table_.Close();
  QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedProject(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString project = DroppedProject(*event->mimeData());
  if (project.isEmpty()) return;
  event->acceptProposedAction();
  OpenProject(project.toStdString());
}

}  // namespace velmar::shell
