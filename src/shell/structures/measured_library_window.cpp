#include "shell/structures/measured_library_window.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "acoustics/bands.h"
#include "foundation/message_rows.h"
#include "shell/structures/extra_data_dialog.h"
#include "shell/structures/own_measurement_tools.h"
#include "shell/structures/test_chooser.h"
#include "shell/structures/test_details.h"
#include "shell/windows/button_row.h"
#include "shell/windows/mnemonics.h"
#include "shell/windows/phrases.h"
#include "storage/library/own_measurements.h"

namespace velmar::structures {
namespace {

constexpr const char* kMemoryName = "database-sperimentale";

shell::RememberedSizes SizesOf(QWidget* window, const TestChooser& chooser) {
  return {QLatin1String(kMemoryName), window, nullptr, chooser.Splitter()};
}

bool HasRatedThirds(const calculation::BandValues& bands) {
  return std::all_of(
      bands.begin() + acoustics::kFirstRatedBand, bands.begin() + acoustics::kLastRatedBand + 1,
      [](const std::optional<double>& value) { return value && *value != calculation::kNotMeasuredDb; });
}

}  // namespace

MeasuredLibraryWindow::MeasuredLibraryWindow(shell::WindowTools tools, LibrarySource source,
                                             MeasuredTarget target, QWidget* parent)
    : QDialog(parent), tools_(std::move(tools)), target_(std::move(target)) {
  setObjectName(QStringLiteral("Form9"));
  setWindowTitle(Caption());
  TestChooser::Controls controls;
  controls.nodes = LibraryNodes(target_.purpose, tools_);
  controls.filters_uses = true;
  if (source.own.add) own_ = new OwnMeasurementTools(tools_, source.own, this);
  controls.enters = own_ != nullptr;
  chooser_ = new TestChooser(tools_, std::move(source), controls, this);
  connect(chooser_, &TestChooser::FileOpened, this,
          [this](const LibraryFile& file, const QString& description) {
            details_->ShowSymbols(SymbolsOf(file.branch));
            details_->ShowDescription(description);
            if (own_ != nullptr) own_->ShowFile(file);
          });
  connect(chooser_, &TestChooser::TestChosen, this, [this](const std::optional<MeasuredTest>& test) {
    details_->Show(test);
    extra_->setEnabled(test.has_value());
    if (own_ != nullptr) own_->ShowTest(test ? std::optional(test->part.name) : std::nullopt);
  });
  if (own_ != nullptr) connect(chooser_, &TestChooser::EntryWanted, own_, &OwnMeasurementTools::EnterNew);
  details_ = new TestDetails(tools_, this);  // behind the chooser, as Tab goes
  chooser_->Splitter()->addWidget(details_);
  chooser_->Splitter()->setStretchFactor(2, 2);
  auto* column = new QVBoxLayout(this);
  column->addWidget(chooser_, 1);
  if (own_ != nullptr) {
    column->addWidget(own_);
    connect(own_, &OwnMeasurementTools::Changed, this, [this](Branch branch, const QString& name) {
      chooser_->ShowTest(branch, std::string(storage::kOwnSeries), name);
    });
  }
  column->addWidget(MakeButtons());
  const QFontMetrics metrics = fontMetrics();
  const int character = metrics.averageCharWidth();
  resize(character * 190, metrics.height() * 40);
  chooser_->Splitter()->setSizes({character * 44, character * 44, character * 102});
  shell::RestoreSizes(tools_.memory, SizesOf(this, *chooser_));
  shell::SetMnemonics(*this);
  chooser_->FocusSearch();
  connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, chooser_, &TestChooser::Refresh);
}

MeasuredLibraryWindow::~MeasuredLibraryWindow() { shell::SaveSizes(tools_.memory, SizesOf(this, *chooser_)); }

QString MeasuredLibraryWindow::Caption() const {
  QString caption = tools_.Text(kMeasuredLibraryRow);
  switch (target_.purpose) {
    case LibraryPurpose::kOpaquePart:
      return tools_.Text(kOpaquePartRow) + QStringLiteral(": ") + caption;
    case LibraryPurpose::kComponents:
      return tools_.Text(kComponentOfCaptionRow) + QStringLiteral(" %1: ").arg(target_.component) + caption;
    case LibraryPurpose::kAirborneData:
      return caption + QStringLiteral(" - ") + tools_.Text(kAirborneDataMenuRow);
    case LibraryPurpose::kImpactData:
      return caption + QStringLiteral(" - ") + tools_.Text(kImpactDataMenuRow);
  }
  return caption;
}

QWidget* MeasuredLibraryWindow::MakeButtons() {
  auto* bar = new shell::ButtonRow(this);
  extra_ = bar->Add("Command2", tools_.Text(kExtraDataRow), [this] { ShowExtraData(); });
  extra_->setEnabled(false);
  bar->AddStretch();
  QPushButton* confirm = bar->Add("Command1", tools_.Text(kConfirmRow), [this] { Take(); });
  confirm->setToolTip(tools_.Text(kConfirmTipRow));
  confirm->setVisible(static_cast<bool>(target_.take));
  confirm->setDefault(static_cast<bool>(target_.take));
  bar->Add("Command3", tools_.Text(kCloseRow), [this] { reject(); });
  return bar;
}

void MeasuredLibraryWindow::Take() {
  if (!chooser_->Chosen()) {
    tools_.Tell(tools_.Text(kNoTestRow));
    return;
  }
  const std::optional<calculation::FacadePart> part = PartForTarget();
  if (!part) return;
  target_.take(*part);
  accept();
}

std::optional<calculation::FacadePart> MeasuredLibraryWindow::PartForTarget() const {
  const MeasuredTest& test = *chooser_->Chosen();
  calculation::FacadePart part = test.part;
  const auto ask = [this](MessageRow lack, MessageRow offer) {
    return tools_.Ask(tools_.Text(lack) + '\n' + tools_.Text(offer));
  };
  switch (target_.needs) {
    case TargetNeeds::kNothing:
      break;
    case TargetNeeds::kRating:
      if (!part.rating_db && !ask(kNeedsRatingRow, kOfferStatedIndexRow)) return std::nullopt;
      break;
    case TargetNeeds::kThirds: {
      if (HasRatedThirds(part.bands_db)) break;
      if (!test.derived_thirds_db) {
        if (!ask(kNeedsThirdsRow, kOfferRatingOnlyRow)) return std::nullopt;
        break;
      }
      if (!ask(kNeedsThirdsRow, kOfferOctavesRow)) return std::nullopt;
      part.bands_db = *test.derived_thirds_db;
      const std::string note = shell::ToUtf8(tools_.Text(kThirdsFromOctavesRow));
      part.description += part.description.empty() ? note : " (" + note + ")";
      break;
    }
  }
  return part;
}

void MeasuredLibraryWindow::ShowExtraData() {
  if (!chooser_->Chosen()) return;
  auto* extra = new ExtraDataDialog(tools_, *chooser_->Chosen(), this);
  extra->setAttribute(Qt::WA_DeleteOnClose);
  connect(extra, &QDialog::finished, this, [this] { setEnabled(true); });
  setEnabled(false);
  extra->setEnabled(true);
  extra->show();
}

}  // namespace velmar::structures
