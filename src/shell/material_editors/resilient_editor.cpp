#include "shell/material_editors/resilient_editor.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <utility>

#include "foundation/message_rows.h"
#include "shell/material_editors/keyword_box.h"
#include "shell/material_editors/number_box.h"
#include "shell/windows/phrases.h"

namespace velmar::material_editors {
namespace {

using enum elements::MaterialProperty;
using materials::ResilientBox;
using materials::ResilientBoxes;
using materials::ResilientEntry;

constexpr int kButtonGapPx = 8;

}  // namespace

ResilientEditor::ResilientEditor(shell::WindowTools tools,
                                 EditedMaterial<elements::ResilientMaterial> material,
                                 const std::vector<std::string>& keywords,
                                 const std::filesystem::path& picture, QWidget* parent)
    : EditorDialog(std::move(tools), QStringLiteral("Form6"), QStringLiteral("materiale-resiliente"), parent),
      material_(std::move(material)) {
  setWindowTitle(Tools().Text(kResilientEditorCaptionRow));
  FieldBoxes boxes = MakeControls(keywords, picture);
  connect(stiffness_, &NumberBox::Left, this,
          [this](bool edited) { Couple(ResilientBox::kStiffness, edited); });
  connect(improvement_, &NumberBox::Left, this,
          [this](bool edited) { Couple(ResilientBox::kImprovement, edited); });
  connect(resonance_, &NumberBox::Left, this,
          [this](bool edited) { Couple(ResilientBox::kResonance, edited); });
  Show(material_.Opened() ? materials::EntryOf(*material_.Opened()) : ResilientEntry{});
  shown_first_ = Entry();
  connect(stiffness_, &QLineEdit::textChanged, this, [this] { ShowStandard(); });
  ShowStandard();
  Finish(std::move(boxes));
}

FieldBoxes ResilientEditor::MakeControls(const std::vector<std::string>& keywords,
                                         const std::filesystem::path& picture) {
  FieldGrid fields(Tools(), this);
  name_ = fields.AddName();
  description_ = fields.AddText("Text2", kMaterialDescriptionRow);
  fields.AddGap();
  const int first_row_beside = fields.NextRow();
  stiffness_ = fields.AddNumber(kDynamicStiffness, "Text3", kDynamicStiffnessRow, kStiffnessTipRow);
  improvement_ = fields.AddNumber(kImpactImprovement, "Text4", kImpactImprovementRow, kImprovementTipRow);
  resonance_ = fields.AddNumber(kResonanceFrequency, "Text5", kResonanceRow, kResonanceTipRow);
  fields.AddPicture(picture, first_row_beside);
  fields.AddRemark(kOneOfThreeRow);
  standard_ = fields.AddRemark(kStandardImprovementRow);
  standard_->setObjectName(QStringLiteral("LabelDLw12354"));
  fields.AddGap();
  thickness_ = fields.AddNumber(kThickness, "Text6", kMaterialThicknessRow);
  density_ = fields.AddNumber(kDensity, "Text7", kMaterialDensityRow);
  fields.AddGap();
  fields.Add(kMaterialKeywordRow, keyword_ = new KeywordBox(QStringLiteral("Text8"), keywords, this),
             kKeywordTipRow);
  source_ = fields.AddText("TextFonte", kSourceCaptionRow);
  auto* column = new QVBoxLayout(this);
  column->addLayout(fields.Layout());
  column->addSpacing(kButtonGapPx);
  column->addStretch(1);
  column->addLayout(MakeButtons(material_.Opened().has_value()));
  return fields.Boxes();
}

void ResilientEditor::Show(const ResilientEntry& entry) {
  name_->setText(shell::FromUtf8(entry.name));
  description_->setText(shell::FromUtf8(entry.description));
  description_->setCursorPosition(0);
  keyword_->setEditText(shell::FromUtf8(entry.keyword));
  source_->setText(shell::FromUtf8(entry.source));
  source_->setCursorPosition(0);
  source_->setToolTip(source_->text());
  stiffness_->ShowStored(entry.stiffness);
  improvement_->ShowStored(entry.improvement);
  resonance_->ShowStored(entry.resonance);
  thickness_->ShowStored(entry.thickness);
  density_->ShowStored(entry.density);
}

ResilientEntry ResilientEditor::Entry() const {
  return {.name = shell::ToUtf8(name_->text()),
          .description = shell::ToUtf8(description_->text()),
          .keyword = shell::ToUtf8(keyword_->currentText()),
          .stiffness = stiffness_->Number(),
          .improvement = improvement_->Number(),
          .resonance = resonance_->Number(),
          .thickness = thickness_->Number(),
          .density = density_->Number(),
          .source = shell::ToUtf8(source_->text())};
}

// A box that was only passed through fills an empty one, but rounds no number that is there.
void ResilientEditor::Couple(ResilientBox left, bool edited) {
  const ResilientBoxes coupled =
      materials::CoupleResilient({stiffness_->Number(), improvement_->Number(), resonance_->Number()}, left);
  stiffness_->Fill(coupled.dynamic_stiffness_mn_m3, edited);
  improvement_->Fill(coupled.impact_improvement_db, edited);
  resonance_->Fill(coupled.resonance_frequency_hz, edited);
}

void ResilientEditor::ShowStandard() {
  const QString value = shell::FromUtf8(materials::StandardImprovement(stiffness_->Number()));
  standard_->setText(Tools().Text(kStandardImprovementRow) +
                     (value.isEmpty() ? QStringLiteral(" -") : ' ' + value + " dB"));
}

bool ResilientEditor::Changed() const { return Entry() != shown_first_; }

SaveOutcome ResilientEditor::Store(const AskUser& ask) { return material_.Save(Entry(), Changed(), ask); }

SaveOutcome ResilientEditor::StoreCopy(const std::string& mark, const AskUser& ask) {
  return material_.SaveCopy(Entry(), mark, ask);
}

}  // namespace velmar::material_editors
