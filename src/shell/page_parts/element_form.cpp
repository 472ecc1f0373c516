#include "shell/page_parts/element_form.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "calculation/edits/element_numbers.h"
#include "foundation/message_rows.h"
#include "shell/fields/number_field.h"
#include "shell/page_parts/element_name.h"
#include "shell/page_parts/element_parts.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::Field;

// Symbols and units, the same in every language.
constexpr const char* kRating = "Rw (dB)";
constexpr const char* kSmallRating = "Dnew (dB)";
constexpr const char* kBands = "Ri [dB]";
constexpr const char* kSmallBands = "Dn [dB]";
constexpr const char* kC = "C [dB]";
constexpr const char* kCtr = "Ctr [dB]";
/// The band values come last, whatever lines are added before them.
constexpr int kBandsLine = 16;

}  // namespace

ElementForm::ElementForm(int element, const ElementNames& names, PageContext& context, QWidget* parent)
    : QWidget(parent), element_(element), context_(context), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kPageSpacing);
  grid_->setVerticalSpacing(kPageSpacing);
  grid_->setColumnStretch(1, 1);
  AddName(names);
  AddDescription(names);
  AddArea(names);
  AddRatings(names);
  AddBands(names);
}

void ElementForm::AddName(const ElementNames& names) {
  name_ = new ElementName(element_, {names.name, names.chooser, names.measured}, context_, this);
  name_label_ = new QLabel(this);
  name_label_->setBuddy(name_);
  grid_->addWidget(name_label_, line_, 0);
  grid_->addWidget(name_, line_++, 1);
}

void ElementForm::AddDescription(const ElementNames& names) {
  description_ = new QLineEdit(this);
  description_->setObjectName(names.description);
  connect(description_, &QLineEdit::returnPressed, this, [this] { FocusNextField(description_); });
  description_->setAccessibleName(Text(context_.Words(), kDescriptionRow));
  connect(description_, &QLineEdit::textEdited, this, [this](const QString& text) {
    context_.open.EditKeepingResult([&](elements::Setup& setup) {
      Visited(setup, element_, [&](auto& element) { element.description = ToUtf8(text); });
    });
  });
  grid_->addWidget(LabelFor(description_, kDescriptionRow, context_, this), line_, 0);
  grid_->addWidget(description_, line_++, 1);
}

void ElementForm::AddArea(const ElementNames& names) {
  area_ = new NumberField(names.area, element_ == 0 ? NumberKind::kReal : NumberKind::kArea, this);
  area_label_ = LabelFor(area_, element_ == 0 ? kFacadeAreaRow : kPartAreaRow, context_, this);
  area_->setAccessibleName(area_label_->text());
  area_->setToolTip(Text(context_.Words(), kAreaTipRow));
  context_.Watch(area_);
  connect(area_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) {
      Visited(setup, element_, [&](auto& element) {
        element_ == 0 ? calculation::EnterElementNumber(element.area_text, text)
                      : calculation::EnterComponentArea(element.area_text, text);
      });
    });
  });
  context_.Place({.field = Field::kArea, .index = element_}, area_);
  area_line_ = new QHBoxLayout;
  area_line_->addWidget(area_);
  if (element_ > 0) AddSmallElementCheck(names.area);
  area_line_->addStretch(1);
  grid_->addWidget(area_label_, line_, 0);
  grid_->addLayout(area_line_, line_++, 1);
}

// An element that is rated by its Dn,e has no area.
void ElementForm::AddSmallElementCheck(const QString& area_name) {
  small_ = new QCheckBox(Text(context_.Words(), kSmallElementCheckRow), this);
  small_->setObjectName("Check" + area_name);
  connect(small_, &QCheckBox::clicked, this, [this](bool small) {
    context_.Edit([&](elements::Setup& setup) {
      Visited(setup, element_,
              [&](auto& element) { element.area_text = small ? elements::kSmallElementArea : ""; });
    });
    if (!small) area_->setFocus(Qt::OtherFocusReason);
  });
  area_line_->addWidget(small_);
}

void ElementForm::AddBehindArea(QWidget* widget) {
  area_line_->insertSpacing(1, kPageSpacing);
  area_line_->insertWidget(2, widget);
}

void ElementForm::AddRatings(const ElementNames& names) {
  const auto number = [this](const QString& name, const QString& caption, NumberKind kind, auto box_of,
                             QWidget* parent) {
    auto* field = new NumberField(name, kind, parent);
    field->setAccessibleName(caption);
    context_.Watch(field);
    connect(field, &NumberField::Edited, this,
            [this, box_of](const std::string& text) { Enter(box_of, text); });
    return field;
  };
  rating_ = number(
      names.rating, kRating, NumberKind::kReal,
      [](auto& element) -> std::string& { return element.rating_text; }, this);
  context_.Place({.field = Field::kRating, .index = element_}, rating_);
  rating_->setToolTip(Text(context_.Words(), kRatingTipRow));
  rating_label_ = new QLabel(kRating, this);
  rating_label_->setObjectName(names.rating_label);
  rating_label_->setBuddy(rating_);

  terms_ = new QWidget(this);
  terms_->setObjectName(names.terms_frame);
  c_ = number(
      names.c, kC, NumberKind::kTerm, [](auto& element) -> std::string& { return element.c_text; }, terms_);
  ctr_ = number(
      names.ctr, kCtr, NumberKind::kTerm, [](auto& element) -> std::string& { return element.ctr_text; },
      terms_);
  context_.Place({.field = Field::kC, .index = element_}, c_);
  context_.Place({.field = Field::kCtr, .index = element_}, ctr_);
  auto* terms = new QHBoxLayout(terms_);
  terms->setContentsMargins(kPageSpacing, 0, 0, 0);
  for (NumberField* field : {c_, ctr_}) {
    auto* label = new QLabel(field->accessibleName(), terms_);
    label->setBuddy(field);
    terms->addWidget(label);
    terms->addWidget(field);
    terms->addSpacing(kPageSpacing);
  }
  AddLine(rating_label_, {rating_, terms_});
}

void ElementForm::AddLine(QLabel* label, const std::vector<QWidget*>& fields) {
  auto* line = new QHBoxLayout;
  for (QWidget* field : fields) line->addWidget(field);
  line->addStretch(1);
  grid_->addWidget(label, line_, 0);
  grid_->addLayout(line, line_++, 1);
}

void ElementForm::AddBands(const ElementNames& names) {
  bands_ = new BandBoxes(names.bands_frame, names.bands, context_.Words(), this);
  for (int band = 0; NumberField * box : bands_->Boxes()) {
    context_.Watch(box);
    context_.Place({.field = Field::kBand, .index = element_, .band = band++}, box);
  }
  connect(bands_, &BandBoxes::Edited, this, [this](std::size_t band, const std::string& text) {
    Enter([band](auto& element) -> std::string& { return element.band_texts.at(band); }, text);
  });
  connect(bands_, &BandBoxes::Pasted, this, [this](const elements::BandTexts& texts) {
    context_.Edit([&](elements::Setup& setup) {
      Visited(setup, element_, [&](auto& element) { element.band_texts = texts; });
    });
  });
  grid_->addWidget(bands_, kBandsLine, 0, 1, 2);
}

template <typename BoxOf>
void ElementForm::Enter(BoxOf&& box_of, const std::string& text) {
  context_.Edit([&](elements::Setup& setup) {
    Visited(setup, element_, [&](auto& element) { calculation::EnterElementNumber(box_of(element), text); });
  });
}

QWidget* ElementForm::NameField() const { return name_; }

void ElementForm::SetNameLabel(const QString& text) { name_label_->setText(text); }

void ElementForm::ShowArea(bool shown) {
  area_label_->setVisible(shown);
  area_->setVisible(shown);
}

void ElementForm::Show(const elements::Setup& setup) {
  const bool simplified = setup.facade.simplified;
  name_->Show(setup);
  Visited(setup, element_, [&](const auto& element) {
    const bool small = element_ > 0 && element.area_text == elements::kSmallElementArea;
    if (const QString description = FromUtf8(element.description); description != description_->text())
      description_->setText(description);
    area_->Show(element.area_text);
    area_->setEnabled(!small || area_->hasFocus());
    if (small_ != nullptr) small_->setChecked(small);
    rating_->Show(element.rating_text);
    c_->Show(element.c_text);
    ctr_->Show(element.ctr_text);
    rating_label_->setText(small ? kSmallRating : kRating);
    bands_->Show(element.band_texts, small ? kSmallBands : kBands);
  });
  terms_->setVisible(simplified);
  bands_->setVisible(!simplified);
  // A component's rating is shown by the simplified form alone, the base element's only opened by it.
  const bool open = simplified || rating_always_open_;
  rating_->setEnabled(open);
  rating_label_->setEnabled(open);
  if (element_ > 0) {
    rating_->setVisible(simplified);
    rating_label_->setVisible(simplified);
  }
}

}  // namespace velmar::shell
