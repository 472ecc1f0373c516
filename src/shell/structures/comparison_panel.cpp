#include "shell/structures/comparison_panel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include "shell/structures/structure_rows.h"
#include "shell/structures/test_chooser.h"

namespace velmar::structures {
namespace {

constexpr MessageRow kNoStructureRow{1710};
constexpr MessageRow kNoDatabaseRow{1711};
constexpr double kRatingScale = 1.4;

QLabel* MakeLabel(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

ComparisonPanel::ComparisonPanel(const windows::WindowTools& tools, LibrarySource source, const Look& look,
                                 std::function<void()> changed, QWidget* parent)
    : QGroupBox(tools.Text(look.caption), parent), tools_(tools), changed_(std::move(changed)) {
  setObjectName(QLatin1String(look.frame));
  check_ = new QCheckBox(tools.Text(look.check_caption), this);
  check_->setObjectName(QLatin1String(look.check));
  database_ = MakeLabel(look.database, this);
  rating_ = MakeLabel(look.rating, this);
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * kRatingScale);
  rating_->setFont(large);
  description_ = new QPlainTextEdit(this);
  description_->setObjectName(QLatin1String(look.description));
  description_->setAccessibleName(tools.Text(kDescriptionRow));
  description_->setReadOnly(true);
  description_->setTabChangesFocus(true);
  description_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  description_->setFixedHeight(fontMetrics().height() * 4);
  TestChooser::Controls controls;
  controls.tree = look.tree;
  controls.keywords = look.keywords;
  controls.list = look.list;
  controls.nodes = look.nodes;
  TestChooser::Listener listener;
  listener.file = [this](const LibraryFile& file, const QString&) {
    database_->setText(windows::ToQt(file.name));
  };
  listener.test = [this](const std::optional<MeasuredTest>& test) { Show(test); };
  chooser_ = new TestChooser(tools, std::move(source), controls, std::move(listener), this);
  auto* column = new QVBoxLayout(this);
  column->addWidget(check_);
  column->addWidget(database_);
  column->addWidget(chooser_, 1);
  column->addWidget(rating_);
  column->addWidget(description_);
  setTabOrder(check_, chooser_);
  connect(check_, &QCheckBox::toggled, this, [this] { changed_(); });
  Reset();
}

bool ComparisonPanel::IsTicked() const { return check_->isChecked(); }

std::string ComparisonPanel::Name() const {
  return IsTicked() && chooser_->Chosen() ? chooser_->Chosen()->part.name : std::string();
}

void ComparisonPanel::Show(const std::optional<MeasuredTest>& test) {
  const MeasuredTest shown = test.value_or(MeasuredTest{});
  for (std::size_t i = 0; i < bands_.size(); ++i) {
    const std::optional<double>& value = shown.part.bands_db[i];
    bands_[i] = value == calculation::kNotMeasuredDb ? 0.0 : value.value_or(0.0);
  }
  const QString rating = windows::ToQt(calculation::BoxText(shown.part.rating_db));
  const QString none = test ? QStringLiteral("-") : tools_.Text(kNoStructureRow);
  rating_->setText(rating.isEmpty() ? none : rating + QStringLiteral(" dB"));
  rating_->setEnabled(test.has_value());
  description_->setPlainText(windows::ToQt(shown.part.description));
  if (IsTicked()) changed_();
}

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
