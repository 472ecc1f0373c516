#include "shell/structures/variants_panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {

VariantsPanel::VariantsPanel(const shell::WindowTools& tools, bool is_impact, QWidget* parent)
    : QWidget(parent), tools_(tools), is_impact_(is_impact) {
  setObjectName(QStringLiteral("Frame3"));
  none_ = new QLabel(tools.Text(kNoVariantsRow), this);
  none_->setWordWrap(true);
  list_ = new QListWidget(this);
  list_->setObjectName(QStringLiteral("List3"));
  list_->setAccessibleName(tools.Text(kVariantsTabRow));
  list_->setTextElideMode(Qt::ElideRight);
  add_ = new QPushButton(tools.Text(kAddCurveRow), this);
  add_->setObjectName(QStringLiteral("ConfrontoAggiungi_2"));
  add_->setAutoDefault(false);
  const auto add = [this] {
    if (Chosen() && !full_) emit AddWanted();
  };
  connect(add_, &QPushButton::clicked, this, add);
  connect(list_, &QListWidget::itemActivated, this, add);
  connect(list_, &QListWidget::itemSelectionChanged, this, [this] { OfferToAdd(full_); });
  auto* foot = new QHBoxLayout;
  foot->addStretch(1);
  foot->addWidget(add_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(none_);
  column->addWidget(list_, 1);
  column->addLayout(foot);
  Show({});
}

void VariantsPanel::Show(const std::vector<presentation::ComparedCurve>& variants) {
  none_->setVisible(variants.empty());
  list_->setVisible(!variants.empty());
  if (variants == variants_) return OfferToAdd(full_);
  const std::optional<presentation::ComparedCurve> chosen = Chosen();
  variants_ = variants;
  list_->clear();
  for (const presentation::ComparedCurve& variant : variants_) {
    const std::string heads = presentation::RatingHeads(is_impact_).front();
    const QString rating =
        shell::FromUtf8(heads + ' ' + presentation::RatingCell(variant, is_impact_) + " dB");
    list_->addItem(shell::FromUtf8(variant.name) + QStringLiteral("  ·  ") + rating);
    list_->item(list_->count() - 1)->setToolTip(shell::FromUtf8(variant.name));
    if (chosen && chosen->name == variant.name) list_->setCurrentRow(list_->count() - 1);
  }
  OfferToAdd(full_);
}

void VariantsPanel::OfferToAdd(bool full) {
  full_ = full;
  const bool any = Chosen().has_value();
  add_->setEnabled(any && !full);
  add_->setToolTip(tools_.Text(full ? kComparisonFullRow : any ? kAddCurveTipRow : kNoCurveToAddRow));
}

std::optional<presentation::ComparedCurve> VariantsPanel::Chosen() const {
  const QList<QListWidgetItem*> selected = list_->selectedItems();
  if (selected.isEmpty()) return std::nullopt;
  return variants_.at(static_cast<std::size_t>(list_->row(selected.first())));
}

}  // namespace velmar::structures
