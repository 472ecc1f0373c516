#include "shell/pages/element_header.h"

#include <QCheckBox>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

#include "foundation/decimal.h"
#include "foundation/message_rows.h"
#include "presentation/texts/calculation_labels.h"
#include "presentation/texts/field_texts.h"
#include "shell/fields/list_boxes.h"
#include "shell/fields/number_field.h"
#include "shell/page_parts/page_layout.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::Field;

/// The element's name ends in a colon where its label once stood before a field.
QString WithoutColon(QString text) {
  if (text.endsWith(':')) text.chop(1);
  return text;
}

}  // namespace

ElementHeader::ElementHeader(PageContext& context, QWidget* parent) : QWidget(parent), context_(context) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kPageMargin, kPageSpacing, kPageMargin, kPageSpacing);
  column->setSpacing(kPageSpacing);
  AddTexts(*column);
  AddNumbers(*column);
  AddConnections(*column);
}

void ElementHeader::AddTexts(QVBoxLayout& column) {
  element_type_ = new QLabel(this);
  element_type_->setObjectName("LabelTeoriaApplicata_0");
  QFont strong = font();
  strong.setBold(true);
  element_type_->setFont(strong);
  element_type_->setWordWrap(true);
  theory_ = new QLabel(this);
  theory_->setObjectName("LabelTeoriaApplicata_1");
  theory_->setForegroundRole(QPalette::PlaceholderText);
  theory_->setWordWrap(true);
  auto* texts = new QVBoxLayout;
  texts->setSpacing(2);
  texts->addWidget(element_type_);
  texts->addWidget(theory_);
  column.addLayout(texts);
}

void ElementHeader::AddNumbers(QVBoxLayout& column) {
  const auto& words = context_.Words();
  QHBoxLayout* line = AddLine(column);
  dimensions_ = new QToolButton(this);
  dimensions_->setIcon(LineIcon("dimensions"));
  dimensions_->setToolTip(Text(words, kDimensionsTipRow));
  dimensions_->setAccessibleName(Text(words, kDimensionsTipRow));
  dimensions_->setAutoRaise(true);
  dimensions_->setFocusPolicy(Qt::TabFocus);
  connect(dimensions_, &QToolButton::clicked, this, &ElementHeader::DimensionsWanted);
  const auto named = [this](const char* name) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    return label;
  };
  width_ = named("Text1");
  height_ = named("Text2");
  line->addWidget(dimensions_);
  line->addWidget(width_);
  auto* times = new QLabel(QStringLiteral("×"), this);
  dimension_labels_ = {width_, times, height_};
  line->addWidget(times);
  line->addWidget(height_);
  area_ = named("LabelArea");
  line->addWidget(area_);
  line->addSpacing(3 * kPageSpacing);

  totals_ = new QWidget(this);
  auto* totals = new QHBoxLayout(totals_);
  totals->setContentsMargins(0, 0, 0, 0);
  totals->setSpacing(kPageSpacing);
  const auto add_total = [&](const char* name, MessageRow caption, MessageRow tip) {
    auto* value = new QLabel(totals_);
    value->setObjectName(name);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont strong = font();
    strong.setBold(true);
    value->setFont(strong);
    auto* label = new QLabel(Text(words, caption), totals_);
    label->setToolTip(Text(words, tip));
    value->setToolTip(Text(words, tip));
    totals->addWidget(label);
    totals->addWidget(value);
    totals->addSpacing(2 * kPageSpacing);
    return value;
  };
  thickness_ = add_total("Text3", kTotalThicknessRow, kTotalThicknessTipRow);
  mass_ = add_total("Text4", kSurfaceMassRow, kMassTipRow);
  line->addWidget(totals_);
  line->addStretch(1);
}

void ElementHeader::AddConnections(QVBoxLayout& column) {
  const auto& words = context_.Words();
  connections_ = new QWidget(this);
  connections_->setObjectName("Frame3");
  auto* line = new QHBoxLayout(connections_);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(kPageSpacing);
  support_ = new NumberField("Text8", NumberKind::kReal, connections_);
  context_.Watch(support_);
  context_.Place({.field = Field::kSupport}, support_);
  connect(support_, &NumberField::Edited, this, [this](const std::string& text) {
    context_.Edit([&](elements::Setup& setup) { setup.support_distance_text = text; });
  });
  support_label_ = LabelFor(support_, kSupportDistanceRow, context_, connections_);
  hanger_ = new ChoiceBox("ComboTipoAppendino", connections_);
  QStringList hangers;
  for (const MessageRow row : presentation::kHangerRows) hangers += Text(words, row);
  context_.Place({.field = Field::kHanger}, hanger_);
  hanger_->Offer(hangers);
  hanger_->setToolTip(Text(words, kHangerTipRow));
  hanger_->setAccessibleDescription(Text(words, kConnectionTypeRow));
  connect(hanger_, &QComboBox::activated, this,
          [this](int index) { context_.Edit([index](elements::Setup& setup) { setup.hanger = index; }); });
  hanger_label_ = LabelFor(hanger_, kConnectionTypeRow, context_, connections_);
  decoupled_ = new QCheckBox(Text(words, kDecoupledRow), connections_);
  decoupled_->setObjectName("CheckDesolidarizza");
  context_.Place({.field = Field::kDecoupling}, decoupled_);
  decoupled_->setToolTip(Text(words, kDecoupledTipRow));
  connect(decoupled_, &QCheckBox::clicked, this, [this](bool ticked) {
    context_.Edit([ticked](elements::Setup& setup) { setup.decoupled = ticked; });
  });
  for (QWidget* widget : {static_cast<QWidget*>(support_label_), static_cast<QWidget*>(support_),
                          static_cast<QWidget*>(hanger_label_), static_cast<QWidget*>(hanger_),
                          static_cast<QWidget*>(decoupled_)})
    line->addWidget(widget);
  line->addStretch(1);
  column.addWidget(connections_);
}

void ElementHeader::Show() {
  const elements::Setup& setup = context_.open.Setup();
  if (!setup.calculation) return;
  const elements::CalculationRow& row = RowOf(*setup.calculation);
  const auto& words = context_.Words();
  element_type_->setText(WithoutColon(Text(words, row.element_type.Line())));
  theory_->setText(Text(words, row.theory.Line()));
  width_->setText(FromUtf8(setup.width_text));
  height_->setText(FromUtf8(setup.height_text) + " m");
  const calculation::Totals& totals = context_.open.CurrentTotals();
  thickness_->setText(FromUtf8(FormatShortest(totals.thickness_mm)));
  // The relations read all decimals; the eye needs one.
  mass_->setText(std::isfinite(totals.surface_mass_kg_m2)
                     ? FromUtf8(FormatFixed(totals.surface_mass_kg_m2, 1))
                     : QStringLiteral("—"));
  // A facade has an area, which is entered on its own page too, and no layers.
  const bool facade = row.family == elements::Family::kFacade;
  totals_->setVisible(!facade);
  for (QWidget* widget : dimension_labels_) widget->setVisible(!facade);
  const QString area = FromUtf8(setup.base.area_text);
  area_->setText(area + QStringLiteral(" m²"));
  area_->setVisible(facade && !area.isEmpty());

  const bool support = row.Reads(Field::kSupport);
  const bool counts = IsCount(row.support);
  support_->SetKind(counts ? NumberKind::kInteger : NumberKind::kReal);
  support_->Show(setup.support_distance_text);
  support_label_->setText(Text(words, counts ? kConnectionsRow : kSupportDistanceRow));
  support_->setAccessibleName(support_label_->text());
  support_->setToolTip(Text(words, counts ? kConnectionsTipRow : kSupportTipRow));
  support_label_->setVisible(support);
  support_->setVisible(support);
  hanger_->Show(setup.hanger);
  hanger_label_->setVisible(row.Reads(Field::kHanger));
  hanger_->setVisible(row.Reads(Field::kHanger));
  decoupled_->setChecked(setup.decoupled);
  decoupled_->setVisible(row.Reads(Field::kDecoupling));
  connections_->setVisible(support || row.Reads(Field::kHanger) || row.Reads(Field::kDecoupling));
}

}  // namespace velmar::shell
