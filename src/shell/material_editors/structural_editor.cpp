#include "shell/material_editors/structural_editor.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "shell/material_editors/keyword_box.h"
#include "shell/material_editors/number_box.h"

namespace velmar::material_editors {
namespace {

using storage::MassBox;
using storage::MassBoxes;
using storage::StructuralEntry;

constexpr MessageRow kCaptionRow{323};
constexpr MessageRow kNameRow{326};
constexpr MessageRow kDescriptionRow{327};
constexpr MessageRow kThicknessRow{328};
constexpr MessageRow kDensityRow{329};
constexpr MessageRow kYoungsModulusRow{330};
constexpr MessageRow kSurfaceMassRow{332};
constexpr MessageRow kCriticalFrequencyRow{333};
constexpr MessageRow kLossFactorRow{334};
constexpr MessageRow kPoissonsRatioRow{335};
constexpr MessageRow kKeywordRow{336};
constexpr MessageRow kTwoOfThreeRow{1650};
constexpr MessageRow kSurfaceMassTipRow{1660};
constexpr MessageRow kYoungsModulusTipRow{1661};
constexpr MessageRow kCriticalFrequencyTipRow{1662};
constexpr MessageRow kLossFactorTipRow{1663};
constexpr MessageRow kPoissonsRatioTipRow{1664};
constexpr MessageRow kKeywordTipRow{1665};

constexpr int kGroupGapPx = 8;

}  // namespace

StructuralEditor::StructuralEditor(windows::WindowTools tools,
                                   EditedMaterial<elements::StructuralMaterial> material,
                                   const std::vector<std::string>& keywords, QWidget* parent)
    : EditorDialog(std::move(tools), QStringLiteral("Form5"), QStringLiteral("materiale-strutturale"),
                   parent),
      material_(std::move(material)) {
  setWindowTitle(Tools().Text(kCaptionRow));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  const auto add_gap = [form] { form->addItem(new QSpacerItem(0, kGroupGapPx)); };
  const auto add_number = [&](const char* object_name, MessageRow caption, MessageRow tip = {}) {
    auto* box = new NumberBox(QLatin1String(object_name), this);
    AddField(*form, caption, box, tip);
    return box;
  };
  AddField(*form, kNameRow, name_ = TextBox("Text1"));
  AddField(*form, kDescriptionRow, description_ = TextBox("Text2"));
  add_gap();
  thickness_ = add_number("Text3", kThicknessRow);
  density_ = add_number("Text4", kDensityRow);
  surface_mass_ = add_number("Text5", kSurfaceMassRow, kSurfaceMassTipRow);
  AddRemark(*form, kTwoOfThreeRow);
  add_gap();
  youngs_modulus_ = add_number("Text6", kYoungsModulusRow, kYoungsModulusTipRow);
  critical_frequency_ = add_number("Text7", kCriticalFrequencyRow, kCriticalFrequencyTipRow);
  loss_factor_ = add_number("Text8", kLossFactorRow, kLossFactorTipRow);
  poissons_ratio_ = add_number("Text9", kPoissonsRatioRow, kPoissonsRatioTipRow);
  add_gap();
  AddField(*form, kKeywordRow, keyword_ = new KeywordBox(QStringLiteral("Text10"), keywords, this),
           kKeywordTipRow);
  column->addLayout(form);
  column->addSpacing(kGroupGapPx);
  column->addStretch(1);
  column->addLayout(MakeButtons());

  thickness_->OnLeave([this](bool edited) { Couple(MassBox::kThickness, edited); });
  density_->OnLeave([this](bool edited) { Couple(MassBox::kDensity, edited); });
  surface_mass_->OnLeave([this](bool edited) { Couple(MassBox::kSurfaceMass, edited); });
  Show(material_.Opened() ? storage::EntryOf(*material_.Opened()) : StructuralEntry{});
  shown_first_ = Entry();
  Finish(name_);
}

void StructuralEditor::Show(const StructuralEntry& entry) {
  name_->setText(windows::ToQt(entry.name));
  description_->setText(windows::ToQt(entry.description));
  description_->setCursorPosition(0);
  thickness_->ShowStored(entry.thickness);
  density_->ShowStored(entry.density);
  surface_mass_->ShowStored(entry.surface_mass);
  youngs_modulus_->ShowStored(entry.youngs_modulus);
  critical_frequency_->ShowStored(entry.critical_frequency);
  loss_factor_->ShowStored(entry.loss_factor);
  poissons_ratio_->ShowStored(entry.poissons_ratio);
  keyword_->setEditText(windows::ToQt(entry.keyword));
}

StructuralEntry StructuralEditor::Entry() const {
  return {.name = windows::FromQt(name_->text()),
          .description = windows::FromQt(description_->text()),
          .thickness = thickness_->Number(),
          .density = density_->Number(),
          .surface_mass = surface_mass_->Number(),
          .youngs_modulus = youngs_modulus_->Number(),
          .critical_frequency = critical_frequency_->Number(),
          .loss_factor = loss_factor_->Number(),
          .poissons_ratio = poissons_ratio_->Number(),
          .keyword = windows::FromQt(keyword_->currentText())};
}

// A box that was only passed through fills an empty one, but rounds no number that is there.
void StructuralEditor::Couple(MassBox left, bool edited) {
  const MassBoxes coupled =
      storage::CoupleMass({thickness_->Number(), density_->Number(), surface_mass_->Number()}, left);
  thickness_->Fill(coupled.thickness_mm, edited);
  density_->Fill(coupled.density_kg_m3, edited);
  surface_mass_->Fill(coupled.surface_mass_kg_m2, edited);
}

bool StructuralEditor::Changed() const { return Entry() != shown_first_; }

SaveOutcome StructuralEditor::Store(const AskUser& ask) { return material_.Save(Entry(), Changed(), ask); }

}  // namespace velmar::material_editors
