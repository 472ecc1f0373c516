#include "shell/structures/comparison_window.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "presentation/drawing/colours.h"
#include "shell/structures/compared_curves_list.h"
#include "shell/structures/comparison_panel.h"
#include "shell/structures/test_chooser.h"
#include "shell/structures/tree_nodes.h"
#include "shell/structures/variants_panel.h"
#include "shell/windows/mnemonics.h"

namespace velmar::structures {
namespace {

constexpr const char* kMemoryName = "confronto-curve";

shell::RememberedSizes SizesOf(QWidget* window, QSplitter* halves) {
  return {QLatin1String(kMemoryName), window, nullptr, halves};
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
  look.add = "ConfrontoAggiungi_0";
  look.caption = kLaboratoryFrameRow;
  look.check_caption = kLaboratoryCheckRow;
  look.look = {presentation::kLaboratoryColour, presentation::kLaboratoryLook};
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
  look.add = "ConfrontoAggiungi_1";
  look.caption = kInSituRow;
  look.check_caption = kInSituCheckRow;
  look.look = {presentation::kInSituColour, presentation::kInSituLook};
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
  chart.further.insert(chart.further.end(), overlay.added.begin(), overlay.added.end());
  chart.comparison = overlay.comparison;
}

ComparisonWindow::ComparisonWindow(shell::WindowTools tools, const LibrarySource& source,
                                   elements::Family family, Draw draw, QWidget* parent)
    : QDialog(parent), tools_(std::move(tools)), draw_(std::move(draw)) {
  setObjectName(QStringLiteral("Form8"));
  setWindowTitle(QStringLiteral("VELMARpro - ") + tools_.Text(kComparisonCaptionRow));
  MakeSides(source, family);
  auto* close = new QPushButton(tools_.Text(kCloseRow), this);
  close->setObjectName(QStringLiteral("Command1"));
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->addWidget(halves_, 1);
  column->addLayout(buttons);
  resize(fontMetrics().averageCharWidth() * 100, fontMetrics().height() * 46);
  shell::RestoreSizes(tools_.memory, SizesOf(this, halves_));
  laboratory_->Chooser()->FocusSearch();
  shell::SetMnemonics(*this);
  connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this, [this] {
    laboratory_->Refresh();
    in_situ_->Refresh();
  });
}

ComparisonWindow::~ComparisonWindow() { shell::SaveSizes(tools_.memory, SizesOf(this, halves_)); }

void ComparisonWindow::MakeSides(const LibrarySource& source, elements::Family family) {
  const bool is_impact = family == elements::Family::kImpact;
  // In the order in which Tab goes through them.
  curves_ = new ComparedCurvesList(tools_, is_impact, this);
  auto* sides = new QTabWidget(this);
  ComparisonPanel::Look look = LaboratoryLook();
  look.nodes = LaboratoryNodes(family, tools_);
  laboratory_ = new ComparisonPanel(tools_, source, look, sides);
  look = InSituLook();
  look.nodes = InSituNodes(family, tools_);
  in_situ_ = new ComparisonPanel(tools_, source, look, sides);
  variants_ = new VariantsPanel(tools_, is_impact, sides);
  sides->setObjectName(QStringLiteral("ConfrontoLati"));
  sides->setDocumentMode(true);
  sides->addTab(laboratory_, laboratory_->accessibleName());
  sides->addTab(in_situ_, in_situ_->accessibleName());
  sides->addTab(variants_, tools_.Text(kVariantsTabRow));
  halves_ = new QSplitter(Qt::Vertical, this);
  halves_->setChildrenCollapsible(false);
  halves_->addWidget(curves_);
  halves_->addWidget(sides);
  halves_->setStretchFactor(1, 1);
  for (ComparisonPanel* side : {laboratory_, in_situ_}) {
    connect(side, &ComparisonPanel::Changed, this, [this] {
      ShowSides();
      draw_(Current());
    });
    connect(side, &ComparisonPanel::AddWanted, this, [this, side] { curves_->Add(*side->Curve(), false); });
  }
  connect(variants_, &VariantsPanel::AddWanted, this, [this] { curves_->Add(*variants_->Chosen(), true); });
  connect(curves_, &ComparedCurvesList::Changed, this, [this] {
    OfferToAdd();
    draw_(Current());
  });
  connect(curves_, &ComparedCurvesList::SideRemoved, this, [this](ComparedCurvesList::Side side) {
    (side == ComparedCurvesList::Side::kLaboratory ? laboratory_ : in_situ_)->Untick();
  });
}

void ComparisonWindow::ShowSides() {
  const auto shown = [](const ComparisonPanel& side) {
    return side.IsTicked() ? side.Curve() : std::nullopt;
  };
  curves_->Put(ComparedCurvesList::Side::kLaboratory, shown(*laboratory_));
  curves_->Put(ComparedCurvesList::Side::kInSitu, shown(*in_situ_));
}

void ComparisonWindow::OfferToAdd() {
  const bool full = curves_->IsFull();
  laboratory_->OfferToAdd(full);
  in_situ_->OfferToAdd(full);
  variants_->OfferToAdd(full);
}

void ComparisonWindow::Follow(const ComparedWork& work) {
  curves_->Put(ComparedCurvesList::Side::kCalculated, work.calculated);
  curves_->FollowVariants(work.variants);
  variants_->Show(work.variants);
  OfferToAdd();
}

void ComparisonWindow::done(int result) {
  laboratory_->Reset();
  in_situ_->Reset();
  curves_->Clear();
  QDialog::done(result);
}

Overlay ComparisonWindow::Current() const {
  Overlay overlay;
  const auto take = [](const ComparisonPanel& side, std::optional<acoustics::Spectrum>& levels,
                       bool& in_octaves) {
    if (!side.IsTicked() || !side.Curve()) return;
    levels = side.Curve()->levels;
    in_octaves = side.Curve()->in_octaves;
  };
  take(*laboratory_, overlay.laboratory, overlay.laboratory_in_octaves);
  take(*in_situ_, overlay.in_situ, overlay.in_situ_in_octaves);
  overlay.laboratory_name = laboratory_->Name();
  overlay.in_situ_name = in_situ_->Name();
  overlay.added = curves_->Added();
  overlay.comparison = curves_->Comparison();
  return overlay;
}

}  // namespace velmar::structures
