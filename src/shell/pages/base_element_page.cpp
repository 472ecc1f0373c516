#include "shell/pages/base_element_page.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "shell/fields/number_field.h"
#include "shell/fields/number_steps.h"
#include "shell/page_parts/element_form.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

/// A number that is 0 when unknown, as a field shows it.
template <typename Number>
std::string Shown(Number value) {
  return value == Number{} ? std::string() : FormatShortest(value);
}

}  // namespace

BaseElementPage::BaseElementPage(PageContext& context, QWidget* parent) : Page(parent), context_(context) {
  QVBoxLayout* column = PageLayout(this);
  simplified_ = new QCheckBox(Text(context.Words(), kSimplifiedRow), this);
  simplified_->setObjectName("Check2");
  connect(simplified_, &QCheckBox::clicked, this, [this](bool ticked) {
    context_.Edit([ticked](elements::Setup& setup) { setup.facade.simplified = ticked; });
  });
  form_ = new ElementForm(0,
                          {.name = "Combo14",
                           .chooser = "Command3",
                           .description = "Text11",
                           .area = "Text7",
                           .rating = "Text25",
                           .rating_label = "Label40",
                           .measured = "Command12_0",
                           .terms_frame = "Frame10",
                           .c = "Text27",
                           .ctr = "Text28",
                           .bands_frame = "Frame4",
                           .bands = "Text13"},
                          context, this);
  form_->SetNameLabel(Text(context.Words(), kBaseElementRow));
  context.Place({.field = elements::Field::kSimplified}, simplified_);
  column->addWidget(simplified_);
  column->addWidget(form_);
  AddPlainBase();
  column->addStretch(1);
}

// A stored result brings its thickness and mass along; a base that is typed in needs fields for them.
void BaseElementPage::AddPlainBase() {
  const auto& words = context_.Words();
  thickness_ = new NumberField("TextSpessoreBase", NumberKind::kReal, this);
  StepByArrows(thickness_);
  thickness_->setToolTip(Text(words, kBaseThicknessTipRow));
  thickness_->setAccessibleName(Text(words, kBaseThicknessTipRow));
  thickness_->setPlaceholderText(FromUtf8(FormatShortest(elements::kDefaultBaseThicknessMm)));
  context_.Watch(thickness_);
  context_.Place({.field = elements::Field::kBaseThickness}, thickness_);
  connect(thickness_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit(
        [&](elements::Setup& setup) { setup.base.thickness_mm = ParseDecimal(text).value_or(0.0); });
  });
  mass_ = new NumberField("TextMassaBase", NumberKind::kReal, this);
  mass_->setToolTip(Text(words, kBaseMassTipRow));
  mass_->setAccessibleName(Text(words, kBaseMassTipRow));
  context_.Watch(mass_);
  context_.Place({.field = elements::Field::kMass}, mass_);
  connect(mass_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) { setup.base.mass_kg_m2 = ParseSingle(text).value_or(0.0F); });
  });
  thickness_label_ = LabelFor(thickness_, kTotalThicknessRow, context_, this);
  mass_label_ = LabelFor(mass_, kSurfaceMassRow, context_, this);
  mass_label_->setContentsMargins(kPageSpacing, 0, 0, 0);
  form_->AddLine(thickness_label_, {thickness_, mass_label_, mass_});
}

QWidget* BaseElementPage::NameField() const { return form_->NameField(); }

void BaseElementPage::Show(const elements::Setup& setup) {
  if (!setup.calculation) return;
  const bool facade = RowOf(*setup.calculation).family == elements::Family::kFacade;
  simplified_->setVisible(facade);
  simplified_->setChecked(setup.facade.simplified);
  form_->KeepRatingOpen(!facade);
  form_->ShowArea(facade);
  form_->Show(setup);
  thickness_->Show(Shown(setup.base.thickness_mm));
  mass_->Show(Shown(setup.base.mass_kg_m2));
  for (QWidget* widget : {static_cast<QWidget*>(thickness_label_), static_cast<QWidget*>(thickness_),
                          static_cast<QWidget*>(mass_label_), static_cast<QWidget*>(mass_)})
    widget->setVisible(!facade);
}

}  // namespace velmar::shell
