#include "shell/element_form.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "calculation/element_choice.h"
#include "shell/element_parts.h"
#include "shell/icons.h"
#include "shell/name_box.h"
#include "shell/number_field.h"
#include "shell/page_parts.h"
#include "shell/phrases.h"

namespace velmar::shell {
namespace {

constexpr MessageRow kDescriptionRow{94};
constexpr MessageRow kAreaRow{95};
constexpr MessageRow kMeasuredRow{97};
constexpr MessageRow kSavedResultsRow{374};
constexpr MessageRow kOpaquePartRow{260};
constexpr MessageRow kComponentRow{378};
constexpr MessageRow kRatingTipRow{1344};
constexpr MessageRow kAreaTipRow{1345};
// Symbols and units, the same in every language.
constexpr const char* kRating = "Rw (dB)";
constexpr const char* kSmallRating = "Dnew (dB)";
constexpr const char* kBands = "Ri [dB]";
constexpr const char* kSmallBands = "Dn [dB]";
constexpr const char* kC = "C [dB]";
constexpr const char* kCtr = "Ctr [dB]";

/// The base element and the components have the same fields.
template <typename AnySetup, typename Visit>
auto Visited(AnySetup& setup, int element, Visit&& visit) {
  if (element == 0) return visit(setup.base);
  return visit(setup.facade.components.at(static_cast<std::size_t>(element - 1)));
}

}  // namespace

ElementForm::ElementForm(int element, const ElementNames& names, PageContext& context, QWidget* parent)
    : QWidget(parent), element_(element), context_(context), grid_(new QGridLayout(this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(kPageSpacing);
  grid_->setVerticalSpacing(kPageSpacing);
  grid_->setColumnStretch(1, 1);
  AddName(names);
  AddNumbers(names);
  AddTerms(names);
  AddBands(names);
}

void ElementForm::AddName(const ElementNames& names) {
  const auto& words = context_.Words();
  name_ = new NameBox(names.name, context_.services.saved_results, this);
  name_->OnName([this](const std::string& name) { TakeName(name); });
  name_label_ = new QLabel(this);
  name_label_->setBuddy(name_);
  auto* chooser = new QToolButton(this);
  chooser->setObjectName(names.chooser);
  chooser->setIcon(LineIcon("list"));
  chooser->setAutoRaise(true);
  chooser->setFocusPolicy(Qt::TabFocus);
  chooser->setToolTip(Text(words, kSavedResultsRow));
  chooser->setAccessibleName(Text(words, kSavedResultsRow));
  chooser->setEnabled(static_cast<bool>(context_.services.pick_saved_result));
  connect(chooser, &QToolButton::clicked, this, [this, chooser] {
    const auto& pick = context_.services.pick_saved_result;
    if (pick) pick(chooser->window(), {element_, Text(context_.Words(), kSavedResultsRow)});
  });
  auto* line = new QHBoxLayout;
  line->addWidget(name_, 1);
  line->addWidget(chooser);
  grid_->addWidget(name_label_, line_, 0);
  grid_->addLayout(line, line_++, 1);

  description_ = new QLineEdit(this);
  description_->setObjectName(names.description);
  description_->setAccessibleName(Text(words, kDescriptionRow));
  connect(description_, &QLineEdit::textEdited, this, [this](const QString& text) {
    context_.open.EditKeepingResult([&](elements::Setup& setup) {
      Visited(setup, element_, [&](auto& element) { element.description = ToUtf8(text); });
    });
  });
  grid_->addWidget(LabelFor(description_, kDescriptionRow, context_, this), line_, 0);
  grid_->addWidget(description_, line_++, 1);
}

void ElementForm::AddNumbers(const ElementNames& names) {
  const auto& words = context_.Words();
  area_ = new NumberField(names.area, element_ == 0 ? NumberKind::kReal : NumberKind::kArea, this);
  area_label_ = LabelFor(area_, kAreaRow, context_, this);
  area_->setAccessibleName(area_label_->text());
  area_->setToolTip(Text(words, kAreaTipRow));
  area_->OnEdit([this](const std::string& text) {
    bool stays = true;
    context_.open.EditKeepingResult([&](elements::Setup& setup) {
      stays = Visited(setup, element_, [&](auto& element) {
        return element_ == 0 ? calculation::EnterElementNumber(element.area_text, text)
                             : calculation::EnterComponentArea(element.area_text, text);
      });
    });
    if (!stays) context_.open.DropResult();
  });
  rating_ = new NumberField(names.rating, NumberKind::kReal, this);
  rating_label_ = new QLabel(kRating, this);
  rating_label_->setObjectName(names.rating_label);
  rating_label_->setBuddy(rating_);
  rating_->setAccessibleName(kRating);
  rating_->setToolTip(Text(words, kRatingTipRow));
  rating_->OnEdit([this](const std::string& text) {
    Enter([](auto& element) -> std::string& { return element.rating_text; }, text);
  });
  auto* measured = new QPushButton(Text(words, kMeasuredRow), this);
  measured->setObjectName(names.measured);
  measured->setEnabled(static_cast<bool>(context_.services.pick_measured));
  connect(measured, &QPushButton::clicked, this, [this] {
    const auto& pick = context_.services.pick_measured;
    const QString caption =
        element_ == 0 ? Text(context_.Words(), kOpaquePartRow) + ':'
                      : Text(context_.Words(), kComponentRow) + ' ' + QString::number(element_) + ':';
    if (pick) pick(window(), {element_, caption});
  });
  auto* line = new QHBoxLayout;
  line->addWidget(area_);
  line->addSpacing(kPageSpacing);
  line->addWidget(rating_label_);
  line->addWidget(rating_);
  line->addStretch(1);
  line->addWidget(measured);
  grid_->addWidget(area_label_, line_, 0);
  grid_->addLayout(line, line_++, 1);
}

void ElementForm::AddTerms(const ElementNames& names) {
  terms_ = new QWidget(this);
  terms_->setObjectName(names.terms_frame);
  auto* line = new QHBoxLayout(terms_);
  line->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const QString& name, const char* caption, auto box_of) {
    auto* field = new NumberField(name, NumberKind::kTerm, terms_);
    field->setAccessibleName(caption);
    field->OnEdit([this, box_of](const std::string& text) { Enter(box_of, text); });
    auto* label = new QLabel(caption, terms_);
    label->setBuddy(field);
    line->addWidget(label);
    line->addWidget(field);
    line->addSpacing(kPageSpacing);
    return field;
  };
  c_ = add(names.c, kC, [](auto& element) -> std::string& { return element.c_text; });
  ctr_ = add(names.ctr, kCtr, [](auto& element) -> std::string& { return element.ctr_text; });
  line->addStretch(1);
  grid_->addWidget(terms_, line_++, 1);
}

void ElementForm::AddBands(const ElementNames& names) {
  bands_ = std::make_unique<BandBoxes>(names.bands_frame, names.bands, this);
  bands_->OnEdit([this](std::size_t band, const std::string& text) {
    Enter([band](auto& element) -> std::string& { return element.band_texts.at(band); }, text);
  });
  grid_->addWidget(bands_->Frame(), line_++, 0, 1, 2);
}

template <typename BoxOf>
void ElementForm::Enter(BoxOf&& box_of, const std::string& text) {
  bool stays = true;
  const auto enter = [&](elements::Setup& setup) {
    stays = Visited(setup, element_,
                    [&](auto& element) { return calculation::EnterElementNumber(box_of(element), text); });
  };
  context_.open.EditKeepingResult(enter);
  if (!stays) context_.open.DropResult();
}

void ElementForm::TakeName(const std::string& name) {
  const auto& read = context_.services.saved_result;
  const std::optional<calculation::FacadePart> part = read ? read(name) : std::nullopt;
  context_.open.Edit([&](elements::Setup& setup) {
    if (part) {
      TakePart(setup, element_, *part);
    } else {
      Visited(setup, element_, [&](auto& element) { element.name = name; });
    }
  });
}

void ElementForm::SetNameLabel(const QString& text) { name_label_->setText(text); }

void ElementForm::ShowArea(bool shown) {
  area_label_->setVisible(shown);
  area_->setVisible(shown);
}

void ElementForm::Show(const elements::Setup& setup) {
  const bool simplified = setup.facade.simplified;
  Visited(setup, element_, [&](const auto& element) {
    const bool small = element_ > 0 && element.area_text == elements::kSmallElementArea;
    name_->Show(element.name);
    if (const QString description = FromUtf8(element.description); description != description_->text())
      description_->setText(description);
    area_->Show(element.area_text);
    rating_->Show(element.rating_text);
    c_->Show(element.c_text);
    ctr_->Show(element.ctr_text);
    rating_label_->setText(small ? kSmallRating : kRating);
    bands_->Show(element.band_texts, small ? kSmallBands : kBands);
  });
  terms_->setVisible(simplified);
  bands_->Frame()->setVisible(!simplified);
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
