#include "shell/project/dimension_dialog.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "calculation/edits/element_numbers.h"
#include "foundation/message_rows.h"
#include "shell/fields/field_note.h"
#include "shell/fields/number_field.h"
#include "shell/windows/boxes.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

bool IsSea(const elements::Setup& setup) {
  return setup.calculation && RowOf(*setup.calculation).family == elements::Family::kSea;
}

}  // namespace

DimensionDialog::DimensionDialog(calculation::OpenCalculation& open, const presentation::Words& words,
                                 QWidget* parent)
    : QDialog(parent), open_(open), words_(words) {
  setObjectName("Form3");
  setWindowTitle(kProductName);
  auto* column = new QVBoxLayout(this);
  auto* frame =
      new QGroupBox(Text(words, IsSea(open.Setup()) ? kSeaDimensionsFrameRow : kDimensionsFrameRow), this);
  frame->setObjectName("Frame1");
  auto* form = new QFormLayout(frame);
  const auto add = [&](const char* name, MessageRow row, const std::string& text) {
    auto* field = new NumberField(name, NumberKind::kReal, frame);
    field->setAccessibleName(Text(words, row));
    field->Show(text);
    field->selectAll();
    connect(field, &NumberField::Edited, this,
            [this](const std::string&) { open_.EditKeepingResult([](elements::Setup&) {}); });
    form->addRow(Text(words, row), field);
    return field;
  };
  width_ = add("Text1", kElementWidthRow, open.Setup().width_text);
  height_ = add("Text2", kElementHeightRow, open.Setup().height_text);
  column->addWidget(frame);
  auto* ok = new QPushButton(Text(words, kOkRow), this);
  ok->setObjectName("Command1");
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &DimensionDialog::Confirm);
  column->addWidget(ok, 0, Qt::AlignRight);
  width_->setFocus();
}

void DimensionDialog::Confirm() {
  const std::string width = ToUtf8(width_->text());
  const std::string height = ToUtf8(height_->text());
  for (NumberField* field : {width_, height_}) {
    if (calculation::IsDimension(ToUtf8(field->text()))) continue;
    field->setFocus();
    FieldNote::Put(field, Text(words_, kNoDimensionRow), NoteLife::kUntilEntered);
    return;
  }
  open_.Edit([&](elements::Setup& setup) { calculation::EnterDimensions(setup, width, height); });
  accept();
}

}  // namespace velmar::shell
