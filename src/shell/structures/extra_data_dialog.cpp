#include "shell/structures/extra_data_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "foundation/message_rows.h"
#include "shell/structures/copied_table.h"
#include "shell/windows/mnemonics.h"
#include "shell/windows/phrases.h"

namespace velmar::structures {
namespace {

constexpr std::array kCaptions = {
    kFieldDateRow,      kFieldAreaRow,        kFieldSourceVolumeRow, kFieldReceivingVolumeRow,
    kFieldThicknessRow, kFieldSurfaceMassRow, kFieldSiteRow,         kFieldPictureRow};
constexpr std::size_t kFieldCount = kCaptions.size();
constexpr const char* kNoPicture = "senza";

std::array<storage::CopiedField, kFieldCount> FieldsOf(const MeasuredTest& test) {
  using storage::NumberField;
  using storage::TextField;
  return {TextField({test.date}),
          NumberField(test.part.area_m2),
          NumberField(test.source_volume_m3),
          NumberField(test.receiving_volume_m3),
          NumberField(test.part.thickness_mm),
          NumberField(test.part.mass_kg_m2),
          TextField({test.site}),
          TextField({test.picture_name.empty() ? kNoPicture : test.picture_name})};
}

}  // namespace

ExtraDataDialog::ExtraDataDialog(const shell::WindowTools& tools, const MeasuredTest& test, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("Form10"));
  setWindowTitle(tools.Text(kAdditionalDataRow) + QStringLiteral(" - VELMARpro"));
  auto* column = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  const std::array<storage::CopiedField, kFieldCount> fields = FieldsOf(test);
  CopiedTable table;
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    const MessageRow caption = kCaptions.at(i);
    auto* label = new QLabel(tools.Text(caption), this);
    label->setObjectName(QStringLiteral("Label1_%1").arg(i));
    auto* box = new QLineEdit(shell::FromUtf8(presentation::InWords(fields[i].text, tools.words)), this);
    box->setObjectName(QStringLiteral("Text1_%1").arg(i));
    box->setAccessibleName(label->text());
    box->setReadOnly(true);
    box->setCursorPosition(0);
    box->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
    label->setBuddy(box);
    form->addRow(label, box);
    table.push_back({storage::TextField({caption}), fields[i]});
  }
  auto* buttons = new QHBoxLayout;
  auto* copy = new QPushButton(tools.Text(kCopyRow), this);
  copy->setObjectName(QStringLiteral("Command1"));
  copy->setAutoDefault(false);
  auto* close = new QPushButton(tools.Text(kCloseRow), this);
  close->setObjectName(QStringLiteral("Command2"));
  close->setDefault(true);
  buttons->addWidget(copy);
  buttons->addStretch(1);
  buttons->addWidget(close);
  column->addLayout(form);
  column->addLayout(buttons);
  shell::SetMnemonics(*this);
  connect(copy, &QPushButton::clicked, this, [table, words = tools.words] {
    QApplication::clipboard()->setMimeData(ClipboardOf(table, words));
  });
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
}

}  // namespace velmar::structures
