#include "shell/structures/comparison_panel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "shell/structures/compared_test.h"
#include "shell/structures/curve_sample.h"
#include "shell/structures/test_chooser.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

constexpr double kRatingScale = 1.4;
constexpr int kDescriptionLines = 3;

QLabel* MakeLabel(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

ComparisonPanel::ComparisonPanel(const shell::WindowTools& tools, LibrarySource source, const Look& look,
                                 QWidget* parent)
    : QGroupBox(parent), tools_(tools) {
  setObjectName(QLatin1String(look.frame));
  setAccessibleName(tools.Text(look.caption));
  setFlat(true);
  check_ = new QCheckBox(tools.Text(look.check_caption), this);
  check_->setObjectName(QLatin1String(look.check));
  const QSize sample(fontMetrics().height() * 3 / 2, fontMetrics().height());
  check_->setIconSize(sample);
  check_->setIcon(SampleOf(look.look, sample));
  database_ = MakeLabel(look.database, this);
  rating_ = MakeLabel(look.rating, this);
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * kRatingScale);
  rating_->setFont(large);
  TestChooser::Controls controls;
  controls.tree = look.tree;
  controls.keywords = look.keywords;
  controls.list = look.list;
  controls.nodes = look.nodes;
  chooser_ = new TestChooser(tools, std::move(source), controls, this);
  connect(chooser_, &TestChooser::FileOpened, this,
          [this](const LibraryFile& file) { database_->setText(shell::FromUtf8(file.name)); });
  connect(chooser_, &TestChooser::TestChosen, this, &ComparisonPanel::Show);
  connect(chooser_, &TestChooser::Meant, this, [this] {
    if (curve_ && !full_) emit AddWanted();
  });
  add_ = new QPushButton(tools.Text(kAddCurveRow), this);
  add_->setObjectName(QLatin1String(look.add));
  add_->setAutoDefault(false);
  connect(add_, &QPushButton::clicked, this, &ComparisonPanel::AddWanted);
  description_ = new QPlainTextEdit(this);
  description_->setObjectName(QLatin1String(look.description));
  description_->setAccessibleName(tools.Text(kDescriptionRow));
  description_->setReadOnly(true);
  description_->setTabChangesFocus(true);
  description_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  description_->setFixedHeight(fontMetrics().height() * kDescriptionLines);
  auto* chosen = new QHBoxLayout;
  chosen->addWidget(rating_, 1);
  chosen->addWidget(add_);
  auto* column = new QVBoxLayout(this);
  column->addWidget(check_);
  column->addWidget(database_);
  column->addWidget(chooser_, 1);
  column->addLayout(chosen);
  column->addWidget(description_);
  connect(check_, &QCheckBox::toggled, this, &ComparisonPanel::Changed);
  Reset();
}

bool ComparisonPanel::IsTicked() const { return check_->isChecked(); }

std::string ComparisonPanel::Name() const {
  return IsTicked() && chooser_->Chosen() ? chooser_->Chosen()->part.name : std::string();
}

void ComparisonPanel::Show(const std::optional<MeasuredTest>& test) {
  const MeasuredTest shown = test.value_or(MeasuredTest{});
  curve_.reset();
  if (test) curve_ = Compared(chooser_->File() ? chooser_->File()->branch : Branch{}, *test);
  const QString rating = shell::FromUtf8(calculation::BoxText(shown.part.rating_db));
  const QString none = test ? QStringLiteral("-") : tools_.Text(kNoStructureRow);
  rating_->setText(rating.isEmpty() ? none : rating + QStringLiteral(" dB"));
  rating_->setEnabled(test.has_value());
  QString description = shell::FromUtf8(shown.part.description);
  if (!shown.notes.empty()) description += (description.isEmpty() ? "" : "\n") + shell::FromUtf8(shown.notes);
  description_->setPlainText(description);
  OfferToAdd(full_);
  if (IsTicked()) emit Changed();
}

void ComparisonPanel::OfferToAdd(bool full) {
  full_ = full;
  add_->setEnabled(curve_ && !full);
  add_->setToolTip(tools_.Text(full ? kComparisonFullRow : curve_ ? kAddCurveTipRow : kNoCurveToAddRow));
}

void ComparisonPanel::Untick() { check_->setChecked(false); }

void ComparisonPanel::Refresh() { chooser_->Refresh(); }

void ComparisonPanel::Reset() {
  {
    const QSignalBlocker quiet(check_);
    check_->setChecked(false);
  }
  chooser_->Clear();
  Show(std::nullopt);
  if (database_->text().isEmpty()) database_->setText(tools_.Text(kNoDatabaseRow));
}

}  // namespace velmar::structures
