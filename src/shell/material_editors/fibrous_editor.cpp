#include "shell/material_editors/fibrous_editor.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "foundation/message_rows.h"
#include "materials/computed_absorption.h"
#include "shell/material_editors/absorption_panel.h"
#include "shell/material_editors/keyword_box.h"
#include "shell/material_editors/number_box.h"
#include "shell/windows/phrases.h"

namespace velmar::material_editors {
namespace {

using enum elements::MaterialProperty;
using materials::FibrousEntry;

constexpr int kColumnGapPx = 16;
constexpr int kButtonGapPx = 8;

}  // namespace

FibrousEditor::FibrousEditor(shell::WindowTools tools, EditedMaterial<elements::FibrousMaterial> material,
                             const std::vector<std::string>& keywords, const std::filesystem::path& picture,
                             QWidget* parent)
    : EditorDialog(std::move(tools), QStringLiteral("Form6"), QStringLiteral("materiale-fibroso"), parent),
      material_(std::move(material)) {
  setWindowTitle(Tools().Text(kFibrousMaterialRow));
  FieldBoxes boxes = MakeControls(keywords, picture);
  connect(absorption_->ComputeButton(), &QPushButton::clicked, this, [this] { ComputeAbsorption(); });
  connect(porous_, &QRadioButton::toggled, this, [this] { EnableWhatCounts(); });
  Show(material_.Opened() ? materials::EntryOf(*material_.Opened()) : FibrousEntry{});
  EnableWhatCounts();
  shown_first_ = Entry();
  Finish(std::move(boxes));
}

FieldBoxes FibrousEditor::MakeControls(const std::vector<std::string>& keywords,
                                       const std::filesystem::path& picture) {
  const auto option = [this](const char* object_name, MessageRow words) {
    auto* button = new QRadioButton(Tools().Text(words), this);
    button->setObjectName(QLatin1String(object_name));
    return button;
  };
  FieldGrid fields(Tools(), this);
  name_ = fields.AddName();
  description_ = fields.AddText("Text2", kMaterialDescriptionRow);
  fields.AddGap();
  thickness_ = fields.AddNumber(kThickness, "Text10", kMaterialThicknessRow);
  density_ = fields.AddNumber(kDensity, "Text9", kMaterialDensityRow);
  fields.AddGap();
  fields.AddWhole(porous_ = option("Option1_0", kPorousRow));
  flow_resistance_ =
      fields.AddNumber(kFlowResistance, "Text14", kMaterialFlowResistanceRow, kFlowResistanceTipRow);
  fields.AddGap();
  fields.AddWhole(solid_ = option("Option1_1", kSolidRow));
  const int first_row_beside = fields.NextRow();
  youngs_modulus_ =
      fields.AddNumber(kYoungsModulus, "Text11", kMaterialYoungsModulusRow, kYoungsModulusTipRow);
  loss_factor_ = fields.AddNumber(kLossFactor, "Text12", kMaterialLossFactorRow, kLossFactorTipRow);
  poissons_ratio_ = fields.AddNumber(kPoissonsRatio, "Text13", kPoissonsRatioRow, kPoissonsRatioTipRow);
  fields.AddPicture(picture, first_row_beside);
  fields.AddGap();
  fields.Add(kMaterialKeywordRow, keyword_ = new KeywordBox(QStringLiteral("Text8"), keywords, this),
             kKeywordTipRow);
  source_ = fields.AddText("TextFonte", kSourceCaptionRow);

  auto* left = new QVBoxLayout;
  left->addLayout(fields.Layout());
  left->addStretch(1);
  auto* faces = new QHBoxLayout;
  faces->setSpacing(kColumnGapPx);
  faces->addLayout(left);
  faces->addWidget(absorption_ = new AbsorptionPanel(Tools(), this), 1);
  auto* column = new QVBoxLayout(this);
  column->addLayout(faces, 1);
  column->addSpacing(kButtonGapPx);
  column->addLayout(MakeButtons(material_.Opened().has_value()));
  FieldBoxes boxes = fields.Boxes();
  for (std::size_t band = 0; band < elements::kAbsorptionBandCount; ++band)
    boxes.emplace(materials::EntryField{kAbsorption, band}, absorption_->Box(band));
  return boxes;
}

void FibrousEditor::Show(const FibrousEntry& entry) {
  name_->setText(shell::FromUtf8(entry.name));
  description_->setText(shell::FromUtf8(entry.description));
  description_->setCursorPosition(0);
  keyword_->setEditText(shell::FromUtf8(entry.keyword));
  source_->setText(shell::FromUtf8(entry.source));
  source_->setCursorPosition(0);
  source_->setToolTip(source_->text());
  thickness_->ShowStored(entry.thickness);
  density_->ShowStored(entry.density);
  (entry.porous ? porous_ : solid_)->setChecked(true);
  youngs_modulus_->ShowStored(entry.youngs_modulus);
  loss_factor_->ShowStored(entry.loss_factor);
  poissons_ratio_->ShowStored(entry.poissons_ratio);
  flow_resistance_->ShowStored(entry.flow_resistance);
  absorption_->Show(entry.absorption);
}

FibrousEntry FibrousEditor::Entry() const {
  return {.name = shell::ToUtf8(name_->text()),
          .description = shell::ToUtf8(description_->text()),
          .keyword = shell::ToUtf8(keyword_->currentText()),
          .thickness = thickness_->Number(),
          .density = density_->Number(),
          .porous = porous_->isChecked(),
          .youngs_modulus = youngs_modulus_->Number(),
          .loss_factor = loss_factor_->Number(),
          .poissons_ratio = poissons_ratio_->Number(),
          .flow_resistance = flow_resistance_->Number(),
          .absorption = absorption_->Entered(),
          .source = shell::ToUtf8(source_->text()),
          .computation = materials::ComputationOf(computed_from_, absorption_->ComputedBands())};
}

void FibrousEditor::EnableWhatCounts() {
  const bool porous = porous_->isChecked();
  flow_resistance_->setEnabled(porous);
  absorption_->setEnabled(porous);
  for (NumberBox* box : {youngs_modulus_, loss_factor_, poissons_ratio_}) box->setEnabled(!porous);
}

void FibrousEditor::ComputeAbsorption() {
  for (NumberBox* box : {thickness_, flow_resistance_}) box->Leave();
  const FibrousEntry entry = Entry();
  const materials::ComputedAbsorption computed = materials::ComputeMissing(entry);
  if (computed.bands.empty()) {
    Tools().Tell(Tools().Text(kNothingToComputeRow));
    return;
  }
  computed_from_ = entry;
  absorption_->ShowComputed(computed.coefficients, computed.bands);
}

bool FibrousEditor::Changed() const { return Entry() != shown_first_; }

SaveOutcome FibrousEditor::Store(const AskUser& ask) { return material_.Save(Entry(), Changed(), ask); }

SaveOutcome FibrousEditor::StoreCopy(const std::string& mark, const AskUser& ask) {
  return material_.SaveCopy(Entry(), mark, ask);
}

}  // namespace velmar::material_editors
