#include "shell/main_window/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "calculation/edits/select_calculation.h"
#include "calculation/edits/usual_layers.h"
#include "foundation/failure.h"
#include "foundation/message_rows.h"
#include "shell/commands/edit_menu.h"
#include "shell/commands/menus.h"
#include "shell/commands/tool_bar.h"
#include "shell/fields/field_note.h"
#include "shell/fields/material_change.h"
#include "shell/main_window/continuous_switch.h"
#include "shell/main_window/start_screen.h"
#include "shell/pages/element_header.h"
#include "shell/pages/input_tabs.h"
#include "shell/results/requirement_line.h"
#include "shell/results/results_panel.h"
#include "shell/results/variant_strip.h"
#include "shell/second_opinion/second_opinion_panel.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

constexpr int kRecoveryDelayMs = 2000;
constexpr int kSayMs = 10000;
constexpr QSize kFirstSize{1280, 720};
constexpr int kInputsWidth = 600;
/// Beside the results of a lining and the comparison the inputs find no more on a screen of 1366 pixels.
constexpr int kNarrowestInputs = 440;
/// What the widest page needs beside a bar to scroll it down; less only where the results have nothing to
/// give.
constexpr int kUsableInputs = 590;

/// What stands ready for a command. The generic linings give ratings alone.
Needs StateOf(const calculation::OpenCalculation& open) {
  const auto& calculation = open.Setup().calculation;
  if (!calculation) return Needs::kNothing;
  if (!open.Result()) return Needs::kCalculation;
  return RowOf(*calculation).model == elements::Model::kGenericLining ? Needs::kResult : Needs::kSpectrum;
}

/// Inputs at the left and results at the right.
class Sides : public QSplitter {
 public:
  Sides() : QSplitter(Qt::Horizontal) {}

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QSplitter::resizeEvent(event);
    const QList<int> now = sizes();
    const int results = widget(1)->minimumSizeHint().width();
    const int wanted = std::min(kUsableInputs - now[0], now[1] - results);
    if (wanted > 0) setSizes({now[0] + wanted, now[1] - wanted});
  }
};

QString DroppedProject(const QMimeData& mime) {
  if (mime.urls().size() != 1) return {};
  const QString file = mime.urls().constFirst().toLocalFile();
  return file.endsWith(".drav", Qt::CaseInsensitive) ? file : QString();
}

}  // namespace

MainWindow::MainWindow(const WindowServices& services, QWidget* parent)
    : QMainWindow(parent),
      services_(services),
      materials_(services.words, services),
      context_(services.open, services, services, materials_),
      work_(services.open),
      memory_(services.places.settings),
      continuous_(services.open),
      recovery_(services.open, services, services.places.recovery, kRecoveryDelayMs),
      files_(services.open, services, services, services.places, memory_, recovery_),
      table_(services.open, services.words),
      help_(services, services, services.places),
      results_(new ResultsPanel(services.open, services, services.accuracy, services.overlay, this)),
      commands_({.window = *this,
                 .open = services.open,
                 .speech = services,
                 .pages = context_,
                 .files = files_,
                 .table = table_,
                 .results = *results_,
                 .accuracy = services.accuracy,
                 .help = &help_,
                 .structures = services.structure_commands,
                 .materials = services.material_commands,
                 .paper = services.paper_commands,
                 .reports = services.report_commands,
                 .documents = services.documents},
                this),
      calculations_(services.words, this) {
  setObjectName("Form1");
  materials_.Remember(services.places.settings);
  setWindowIcon(ProductIcon());
  setAcceptDrops(true);
  const OpenMenus menus = FillMenuBar(*menuBar(), commands_, calculations_, services.words);
  recent_ = menus.recent;
  edit_menu_ = new EditMenu(services.open, services.words, this);
  menuBar()->insertMenu(menuBar()->actions().at(1), edit_menu_);
  connect(qApp, &QApplication::focusChanged, this, [this] {
    services_.open.EndStep();
    continuous_.FollowLeftField();
  });
  tool_bar_ = new CommandToolBar(commands_, calculations_, services.words, this);
  addToolBar(tool_bar_);
  AddContinuousSwitch(*menus.calculation);
  for (const elements::Field dimension : {elements::Field::kWidth, elements::Field::kHeight})
    context_.Place({.field = dimension}, tool_bar_->ButtonOf(CommandId::kDimensions));
  // Shortcuts work whether or not their menu was ever open.
  for (const Command& command : Commands()) addAction(commands_.Of(command.id));
  variants_ = new VariantStrip(services.open, services, results_);
  results_->AddOverlay(variants_->Curves());
  results_->AddFoot(variants_);
  opinion_ = new SecondOpinionPanel(services.open, services, services.accuracy, this);
  results_->AddOverlay(opinion_->Curves());
  results_->AddFoot(opinion_);
  MakeCentre();
  MakeStatusLine();
  Connect();
  sides_->setSizes({kInputsWidth, kFirstSize.width() - kInputsWidth});
  sides_arranged_ = memory_.RestoreSizes(*this, *sides_, *results_->Splitter());
  if (!sides_arranged_) resize(kFirstSize);
  ShowName();
  ShowAll();
}

// A field that has the keys is left while the pages are still there to be told: when it is destroyed, what
// they work on is gone already.
MainWindow::~MainWindow() {
  if (QWidget* field = focusWidget()) field->clearFocus();
  disconnect(qApp, nullptr, this, nullptr);
}

void MainWindow::MakeCentre() {
  auto* inputs = new QWidget;
  inputs->setMinimumWidth(kNarrowestInputs);
  auto* column = new QVBoxLayout(inputs);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  header_ = new ElementHeader(context_);
  connect(header_, &ElementHeader::DimensionsWanted, commands_.Of(CommandId::kDimensions), &QAction::trigger);
  tabs_ = new InputTabs(context_);
  column->addWidget(header_);
  column->addWidget(tabs_, 1);
  sides_ = new Sides;
  sides_->setChildrenCollapsible(false);
  sides_->addWidget(inputs);
  sides_->addWidget(results_);
  sides_->setStretchFactor(0, 0);
  sides_->setStretchFactor(1, 1);
  start_ = new StartScreen(services_.words, calculations_, services_.look_at_project);
  centre_ = new QStackedWidget(this);
  centre_->addWidget(start_);
  centre_->addWidget(sides_);
  setCentralWidget(centre_);
}

// It takes no room while there is nothing to say.
void MainWindow::MakeStatusLine() {
  said_ = new QLabel;
  said_->setObjectName("RigaStato");
  said_->setTextFormat(Qt::PlainText);
  said_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  statusBar()->addWidget(said_, 1);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->hide();
  silence_.setSingleShot(true);
  silence_.setInterval(kSayMs);
  connect(&silence_, &QTimer::timeout, statusBar(), &QStatusBar::hide);
}

void MainWindow::Say(const QString& text) {
  said_->setText(text);
  said_->setToolTip(text);
  statusBar()->show();
  silence_.start();
}

void MainWindow::AddContinuousSwitch(QMenu& menu) {
  auto* on = new ContinuousSwitch(continuous_, memory_, services_.words, this);
  addAction(on);
  tool_bar_->AddBehindRun(on);
  menu.insertAction(commands_.Of(CommandId::kCompareBeside), on);
  results_->Follow(continuous_);
  connect(&work_, &OpenWork::AboutToTell, &continuous_, &ContinuousCalculation::Follow);
}

void MainWindow::Connect() {
  if (services_.structure_commands != nullptr) {
    // Before the chart is shown with what it lays over it.
    ComparisonCommand& comparison = services_.structure_commands->Comparison();
    connect(&work_, &OpenWork::ResultGone, &comparison, &ComparisonCommand::ResultGone);
    connect(&work_, &OpenWork::Changed, &comparison, &ComparisonCommand::Follow);
    connect(&files_, &ProjectFiles::Opened, &comparison, &ComparisonCommand::Close);
  }
  connect(&work_, &OpenWork::Changed, this, &MainWindow::ShowAll);
  connect(&files_, &ProjectFiles::Renamed, this, &MainWindow::ShowName);
  connect(&table_, &OpenTable::Toggled, this, &MainWindow::ShowAll);
  connect(&commands_, &CommandSet::KindChosen, this, &MainWindow::Begin);
  connect(&commands_, &CommandSet::ExitWanted, this, &MainWindow::Exit);
  connect(&calculations_, &CalculationActions::Chosen, this, &MainWindow::Choose);
  connect(start_, &StartScreen::KindChosen, this, &MainWindow::Begin);
  connect(start_, &StartScreen::ProjectChosen, this, &MainWindow::OpenProject);
  connect(start_, &StartScreen::TemplateChosen, this, &MainWindow::BeginWith);
  connect(start_, &StartScreen::TemplateRenamingWanted, this, [this](const std::filesystem::path& pattern) {
    if (files_.OwnTemplates().Rename(pattern)) ShowProjects();
  });
  connect(start_, &StartScreen::TemplateRemovalWanted, this, [this](const std::filesystem::path& pattern) {
    if (files_.OwnTemplates().Remove(pattern)) ShowProjects();
  });
  connect(&files_, &ProjectFiles::TemplateKept, this, [this](const std::filesystem::path& file) {
    Say(Text(services_.words, kTemplateKeptRow) + ' ' + FromUtf8(file.stem()));
    ShowProjects();
  });
  connect(&commands_, &CommandSet::AboutToAct, &context_, &PageContext::SettleAsked);
  connect(edit_menu_, &EditMenu::SettleAsked, &context_, &PageContext::SettleAsked);
  connect(edit_menu_, &EditMenu::FixVariantWanted, variants_, &VariantStrip::Fix);
  connect(variants_, &VariantStrip::SettleAsked, &context_, &PageContext::SettleAsked);
  connect(&commands_, &CommandSet::AboutToAct, results_->Requirement(), &RequirementLine::Settle);
  // What was said of a field of the element before.
  connect(&files_, &ProjectFiles::Opened, this, [this] { FieldNote::Remove(this); });
  connect(&files_, &ProjectFiles::Opened, tabs_, &InputTabs::FocusFirst);
  connect(&files_, &ProjectFiles::Emptied, this, [this] {
    for (const elements::CalculationRow& row : elements::Catalogue())
      calculations_.Of(row.calculation)->setChecked(false);
  });
  connect(&files_, &ProjectFiles::Saved, this, [this](const std::filesystem::path& file) {
    Say(Text(services_.words, kProjectSavedRow) + ' ' + QString::fromStdString(file.string()));
  });
  connect(&files_, &ProjectFiles::Recovered, this, [this] {
    const QString name = files_.File().empty() ? Text(services_.words, kNewProjectRow)
                                               : QFileInfo(windowFilePath()).completeBaseName();
    Say(Text(services_.words, kRecoveredRow) + ' ' + name);
  });
  connect(&recovery_, &Recovery::Kept, this, [this] {
    if (memory_.IsFirst(QStringLiteral("chiusura"))) Say(Text(services_.words, kClosingKeepsWorkRow));
  });
  connect(&recovery_, &Recovery::NotKept, this, [this] { Say(Text(services_.words, kCopyNotWrittenRow)); });
  connect(&context_, &PageContext::RowHovered, results_, &ResultsPanel::Highlight);
  connect(results_, &ResultsPanel::LayerHovered, &context_, &PageContext::SectionHovered);
  connect(results_, &ResultsPanel::LayerChosen, tabs_, &InputTabs::GoTo);
  if (services_.material_commands != nullptr) FollowMaterials(*services_.material_commands);
}

void MainWindow::Begin(elements::ElementButton kind) {
  const auto& open = services_.open.Setup().calculation;
  if (open && RowOf(*open).button == kind) {
    tabs_->ShowFirst();
  } else {
    Choose(FirstOf(kind));
  }
}

void MainWindow::Choose(elements::Calculation calculation) {
  tabs_->LayOutAnew();
  const auto before = services_.open.Setup().calculation;
  const bool begins = !before && files_.File().empty();
  context_.Edit([this, begins, calculation](elements::Setup& setup) {
    if (begins) {
      calculation::BeginElement(setup, calculation, services_.materials);
    } else {
      calculation::SelectCalculation(setup, calculation);
    }
  });
  files_.FollowChoice(before);
  if (begins) tabs_->FocusFirst();
}

void MainWindow::ShowAll() {
  const elements::Setup& setup = services_.open.Setup();
  table_.Follow();
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
  variants_->Show();
  results_->Show();
  opinion_->Follow();
}

// Only once they have their place on the screen do the sides keep what they are given; what the inputs leave
// goes to the results.
void MainWindow::ArrangeSides() {
  if (sides_arranged_ || !sides_->isVisible()) return;
  sides_arranged_ = true;
  sides_->setGeometry(centre_->rect());
  sides_->setSizes({kInputsWidth, centre_->width() - kInputsWidth});
}

void MainWindow::ShowName() {
  setWindowTitle(files_.Caption());
  setWindowFilePath(QString::fromStdString(files_.File().string()));
  ShowProjects();
}

void MainWindow::ShowProjects() {
  const auto recent = memory_.RecentProjects();
  start_->ShowProjects({.recent = recent,
                        .templates = files_.OwnTemplates().All(),
                        .examples = ProjectsIn(services_.places.examples)},
                       services_.open.Setup());
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
}

void MainWindow::BeginWith(const std::filesystem::path& pattern) {
  tabs_->LayOutAnew();
  files_.Begin(pattern);
}

void MainWindow::OfferRecovery() {
  tabs_->LayOutAnew();
  files_.OfferRecovery();
}

void MainWindow::FollowMaterials(MaterialCommands& commands) {
  commands.SearchIn([this] {
    storage::SearchedProjects where{.files = memory_.RecentProjects(),
                                    .folders = {services_.places.documents}};
    if (!files_.File().empty()) where.folders.insert(where.folders.begin(), files_.File().parent_path());
    return where;
  });
  connect(&commands, &MaterialCommands::Changed, this, [this](const MaterialChange& change) {
    materials_.Follow(change);
    ShowAll();
  });
  connect(&commands, &MaterialCommands::Removed, this,
          [this](elements::MaterialFamily family, const std::string& name) {
            materials_.Forget(family, name);
            ShowAll();
          });
  connect(&commands, &MaterialCommands::Reread, this, [this] {
    try {
      materials_.Reload();
    } catch (const Failure& failure) {
      services_.boxes.tell(Tone::kCritical, Text(services_.words, failure.UserMessage()));
    }
    ShowAll();
  });
}

void MainWindow::SurviveFailure(const QString& what) {
  const bool kept = recovery_.Keep();
  QString text = Text(services_.words, kUnexpectedRow);
  if (kept) text += '\n' + Text(services_.words, kWorkKeptRow);
  services_.boxes.tell(Tone::kCritical, text + '\n' + what);
}

// The menu entry and the closing of the window do not ask: unsaved work is offered again at the next start.
void MainWindow::Exit(bool asking) {
  if (asking) {
    if (!files_.LeaveUnsaved()) return;
    files_.GiveUp();
  }
  close();
}

// Only work that cannot be kept is asked about.
void MainWindow::closeEvent(QCloseEvent* event) {
  if (recovery_.HasWork() && !recovery_.Keep()) {
    if (!files_.LeaveUnsaved()) return event->ignore();
    files_.GiveUp();
  }
  memory_.SaveSizes(*this, *sides_, *results_->Splitter());
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
