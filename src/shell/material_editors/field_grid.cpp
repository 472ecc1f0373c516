#include "shell/material_editors/field_grid.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "foundation/message_rows.h"
#include "shell/material_editors/number_box.h"
#include "shell/windows/picture_view.h"

namespace velmar::material_editors {
namespace {

constexpr int kGapPx = 10;
constexpr int kTextWidthInCharacters = 60;
constexpr int kColumns = 3;

/// "Nome:" without its colon.
QString SpokenName(QString caption) {
  if (caption.endsWith(':')) caption.chop(1);
  return caption;
}

/// Some captions serve windows too whose captions have no colon.
QString Caption(const QString& text) { return SpokenName(text) + ':'; }

}  // namespace

FieldGrid::FieldGrid(const shell::WindowTools& tools, QWidget* window)
    : tools_(tools), window_(window), grid_(new QGridLayout) {
  grid_->setColumnStretch(kColumns - 1, 1);
}

void FieldGrid::Name(MessageRow caption, QWidget* box, MessageRow tip) {
  auto* label = new QLabel(Caption(tools_.Text(caption)), window_);
  label->setBuddy(box);
  box->setAccessibleName(SpokenName(label->text()));
  if (tip.number != 0) {
    const QString words = tools_.Text(tip);
    label->setToolTip(words);
    box->setToolTip(words);
    box->setAccessibleDescription(words);
  }
  grid_->addWidget(label, next_row_, 0);
}

void FieldGrid::Add(MessageRow caption, QWidget* box, MessageRow tip) {
  Name(caption, box, tip);
  grid_->addWidget(box, next_row_++, 1, 1, kColumns - 1);
}

QLineEdit* FieldGrid::AddName() {
  QLineEdit* box = AddText("Text1", kMaterialNameRow);
  boxes_.emplace(materials::kNameField, box);
  return box;
}

QLineEdit* FieldGrid::AddText(const char* object_name, MessageRow caption) {
  auto* box = new QLineEdit(window_);
  box->setObjectName(QLatin1String(object_name));
  box->setMinimumWidth(box->fontMetrics().averageCharWidth() * kTextWidthInCharacters);
  Add(caption, box);
  return box;
}

NumberBox* FieldGrid::AddNumber(elements::MaterialProperty property, const char* object_name,
                                MessageRow caption, MessageRow tip) {
  auto* box = new NumberBox(QLatin1String(object_name), window_);
  boxes_.emplace(materials::EntryField{property}, box);
  Name(caption, box, tip);
  grid_->addWidget(box, next_row_++, 1);
  return box;
}

void FieldGrid::AddWhole(QWidget* control) { grid_->addWidget(control, next_row_++, 0, 1, kColumns); }

QLabel* FieldGrid::AddRemark(MessageRow text) {
  auto* remark = new QLabel(tools_.Text(text), window_);
  remark->setWordWrap(true);
  remark->setForegroundRole(QPalette::PlaceholderText);
  AddWhole(remark);
  return remark;
}

void FieldGrid::AddGap() { grid_->setRowMinimumHeight(next_row_++, kGapPx); }

void FieldGrid::AddPicture(const std::filesystem::path& file, int first_row) {
  auto* view = new shell::PictureView(tools_, window_);
  view->setObjectName(QStringLiteral("Picture1"));
  view->setAccessibleName(tools_.Text(kMaterialPictureRow));
  // The boxes beside it decide how high it is.
  view->setMinimumHeight(0);
  view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  view->Show(file);
  grid_->addWidget(view, first_row, kColumns - 1, next_row_ - first_row, 1);
}

}  // namespace velmar::material_editors
