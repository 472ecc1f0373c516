#include "shell/structures/comparison_window.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "presentation/drawing/colours.h"
#include "shell/structures/comparison_panel.h"
#include "shell/structures/test_chooser.h"
#include "shell/structures/tree_nodes.h"
#include "shell/windows/mnemonics.h"

namespace velmar::structures {
namespace {

constexpr const char* kMemoryName = "confronto-strutture";
constexpr int kPairCharacters = 120;  // two sides beside each other

shell::RememberedSizes SizesOf(QWidget* window, QSplitter* sides) {
  return {QLatin1String(kMemoryName), window, nullptr, sides};
}

ComparisonPanel::Look LaboratoryLook() {
  ComparisonPanel::Look look;
  look.frame = "Frame1";
  look.check = "Check1";
  look.tree = "TreeView1";
  look.keywords = "Combo1";
  look.list = "List1";
  look.description = "Text1";
  look.database = "Label7";
  look.rating = "Label2";
  look.caption = kLaboratoryFrameRow;
  look.check_caption = kLaboratoryCheckRow;
  look.colour = presentation::kLaboratoryColour;
  return look;
}

ComparisonPanel::Look InSituLook() {
  ComparisonPanel::Look look;
  look.frame = "Frame2";
  look.check = "Check2";
  look.tree = "TreeView2";
  look.keywords = "Combo2";
  look.list = "List2";
  look.description = "Text2";
  look.database = "Label8";
  look.rating = "Label5";
  look.caption = kInSituRow;
  look.check_caption = kInSituCheckRow;
  look.colour = presentation::kInSituColour;
  return look;
}

}  // namespace

void LayOver(presentation::CurveChart& chart, const Overlay& overlay) {
  chart.laboratory = overlay.laboratory;
  chart.in_situ = overlay.in_situ;
  chart.laboratory_in_octaves = overlay.laboratory_in_octaves;
  chart.in_situ_in_octaves = overlay.in_situ_in_octaves;
  chart.laboratory_name = overlay.laboratory_name;
  chart.in_situ_name = overlay.in_situ_name;
}

ComparisonWindow::ComparisonWindow(shell::WindowTools tools, const LibrarySource& source,
                                   elements::Family family, Draw draw, QWidget* parent)
    : QDialog(parent), tools_(std::move(tools)), draw_(std::move(draw)) {
  setObjectName(QStringLiteral("Form8"));
  setWindowTitle(QStringLiteral("VELMARpro - ") + tools_.Text(kComparisonCaptionRow));
  ComparisonPanel::Look look = LaboratoryLook();
  look.nodes = LaboratoryNodes(family, tools_);
  laboratory_ = new ComparisonPanel(tools_, source, look, this);
  look = InSituLook();
  look.nodes = InSituNodes(family, tools_);
  in_situ_ = new ComparisonPanel(tools_, source, look, this);
  for (const ComparisonPanel* side : {laboratory_, in_situ_})
    connect(side, &ComparisonPanel::Changed, this, [this] { draw_(Current()); });
  sides_ = new QSplitter(Qt::Horizontal, this);
  sides_->setChildrenCollapsible(false);
  sides_->addWidget(laboratory_);
  sides_->addWidget(in_situ_);
  auto* close = new QPushButton(tools_.Text(kCloseRow), this);
  close->setObjectName(QStringLiteral("Command1"));
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->addWidget(sides_, 1);
  column->addLayout(buttons);
  resize(fontMetrics().averageCharWidth() * 170, fontMetrics().height() * 34);
  shell::RestoreSizes(tools_.memory, SizesOf(this, sides_));
  laboratory_->Chooser()->FocusSearch();
  shell::SetMnemonics(*this);
  connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this, [this] {
    laboratory_->Refresh();
    in_situ_->Refresh();
  });
}

ComparisonWindow::~ComparisonWindow() { shell::SaveSizes(tools_.memory, SizesOf(this, sides_)); }

void ComparisonWindow::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);
  if (event->spontaneous()) return;  // minimized, not closed
  laboratory_->Reset();
  in_situ_->Reset();
}

void ComparisonWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  const int narrowest_pair = fontMetrics().averageCharWidth() * kPairCharacters;
  sides_->setOrientation(width() < narrowest_pair ? Qt::Vertical : Qt::Horizontal);
}

Overlay ComparisonWindow::Current() const {
  Overlay overlay;
  const acoustics::Spectrum none{};
  if (laboratory_->IsTicked() && laboratory_->Bands() != none) overlay.laboratory = laboratory_->Bands();
  if (in_situ_->IsTicked() && in_situ_->Bands() != none) overlay.in_situ = in_situ_->Bands();
  overlay.laboratory_in_octaves = overlay.laboratory && laboratory_->AreOctaves();
  overlay.in_situ_in_octaves = overlay.in_situ && in_situ_->AreOctaves();
  overlay.laboratory_name = laboratory_->Name();
  overlay.in_situ_name = in_situ_->Name();
  return overlay;
}

}  // namespace velmar::structures
