#include "shell/material_editors/structural_editor.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "shell/material_editors/keyword_box.h"
#include "shell/material_editors/number_box.h"
#include "shell/windows/phrases.h"

namespace velmar::material_editors {
namespace {

using enum elements::MaterialProperty;
using materials::MassBox;
using materials::MassBoxes;
using materials::StructuralEntry;

constexpr int kButtonGapPx = 8;

}  // namespace

StructuralEditor::StructuralEditor(shell::WindowTools tools,
                                   EditedMaterial<elements::StructuralMaterial> material,
                                   const std::vector<std::string>& keywords, QWidget* parent)
    : EditorDialog(std::move(tools), QStringLiteral("Form5"), QStringLiteral("materiale-strutturale"),
                   parent),
      material_(std::move(material)) {
  setWindowTitle(Tools().Text(kStructuralEditorCaptionRow));
  auto* column = new QVBoxLayout(this);
  FieldGrid fields(Tools(), this);
  name_ = fields.AddName();
  description_ = fields.AddText("Text2", kMaterialDescriptionRow);
  fields.AddGap();
  thickness_ = fields.AddNumber(kThickness, "Text3", kMaterialThicknessRow);
  density_ = fields.AddNumber(kDensity, "Text4", kMaterialDensityRow);
  surface_mass_ = fields.AddNumber(kSurfaceMass, "Text5", kMaterialSurfaceMassRow, kSurfaceMassTipRow);
  fields.AddRemark(kTwoOfThreeRow);
  fields.AddGap();
  youngs_modulus_ =
      fields.AddNumber(kYoungsModulus, "Text6", kMaterialYoungsModulusRow, kYoungsModulusTipRow);
  critical_frequency_ =
      fields.AddNumber(kCriticalFrequency, "Text7", kCriticalFrequencyRow, kCriticalFrequencyTipRow);
  loss_factor_ = fields.AddNumber(kLossFactor, "Text8", kMaterialLossFactorRow, kLossFactorTipRow);
  poissons_ratio_ = fields.AddNumber(kPoissonsRatio, "Text9", kPoissonsRatioRow, kPoissonsRatioTipRow);
  fields.AddGap();
  fields.Add(kMaterialKeywordRow, keyword_ = new KeywordBox(QStringLiteral("Text10"), keywords, this),
             kKeywordTipRow);
  source_ = fields.AddText("TextFonte", kSourceCaptionRow);
  column->addLayout(fields.Layout());
  column->addSpacing(kButtonGapPx);
  column->addStretch(1);
  column->addLayout(MakeButtons(material_.Opened().has_value()));

  connect(thickness_, &NumberBox::Left, this, [this](bool edited) { Couple(MassBox::kThickness, edited); });
  connect(density_, &NumberBox::Left, this, [this](bool edited) { Couple(MassBox::kDensity, edited); });
  connect(surface_mass_, &NumberBox::Left, this,
          [this](bool edited) { Couple(MassBox::kSurfaceMass, edited); });
  Show(material_.Opened() ? materials::EntryOf(*material_.Opened()) : StructuralEntry{});
  shown_first_ = Entry();
  Finish(fields.Boxes());
}

void StructuralEditor::Show(const StructuralEntry& entry) {
  name_->setText(shell::FromUtf8(entry.name));
  description_->setText(shell::FromUtf8(entry.description));
  description_->setCursorPosition(0);
  thickness_->ShowStored(entry.thickness);
  density_->ShowStored(entry.density);
  surface_mass_->ShowStored(entry.surface_mass);
  youngs_modulus_->ShowStored(entry.youngs_modulus);
  critical_frequency_->ShowStored(entry.critical_frequency);
  loss_factor_->ShowStored(entry.loss_factor);
  poissons_ratio_->ShowStored(entry.poissons_ratio);
  keyword_->setEditText(shell::FromUtf8(entry.keyword));
  source_->setText(shell::FromUtf8(entry.source));
  source_->setCursorPosition(0);
  source_->setToolTip(source_->text());
}

StructuralEntry StructuralEditor::Entry() const {
  return {.name = shell::ToUtf8(name_->text()),
          .description = shell::ToUtf8(description_->text()),
          .thickness = thickness_->Number(),
          .density = density_->Number(),
          .surface_mass = surface_mass_->Number(),
          .youngs_modulus = youngs_modulus_->Number(),
          .critical_frequency = critical_frequency_->Number(),
          .loss_factor = loss_factor_->Number(),
          .poissons_ratio = poissons_ratio_->Number(),
          .keyword = shell::ToUtf8(keyword_->currentText()),
          .source = shell::ToUtf8(source_->text())};
}

// A box that was only passed through fills an empty one, but rounds no number that is there.
void StructuralEditor::Couple(MassBox left, bool edited) {
  const MassBoxes coupled =
      materials::CoupleMass({thickness_->Number(), density_->Number(), surface_mass_->Number()}, left);
  thickness_->Fill(coupled.thickness_mm, edited);
  density_->Fill(coupled.density_kg_m3, edited);
  surface_mass_->Fill(coupled.surface_mass_kg_m2, edited);
}

bool StructuralEditor::Changed() const { return Entry() != shown_first_; }

SaveOutcome StructuralEditor::Store(const AskUser& ask) { return material_.Save(Entry(), Changed(), ask); }

SaveOutcome StructuralEditor::StoreCopy(const std::string& mark, const AskUser& ask) {
  return material_.SaveCopy(Entry(), mark, ask);
}

}  // namespace velmar::material_editors
