#include "shell/material_editors/editor_dialog.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "foundation/message_rows.h"
#include "shell/material_editors/number_box.h"
#include "shell/windows/mnemonics.h"
#include "shell/windows/phrases.h"

namespace velmar::material_editors {
EditorDialog::EditorDialog(shell::WindowTools tools, const QString& object_name, QString memory_name,
                           QWidget* parent)
    : QDialog(parent), tools_(std::move(tools)), memory_name_(std::move(memory_name)) {
  setObjectName(object_name);
}

EditorDialog::~EditorDialog() { shell::SaveSizes(tools_.memory, {memory_name_, this, nullptr, nullptr}); }

QHBoxLayout* EditorDialog::MakeButtons(bool with_copy) {
  auto* row = new QHBoxLayout;
  auto* save = new QPushButton(tools_.Text(kSaveMaterialRow), this);
  save->setObjectName(QStringLiteral("Command1"));
  save->setDefault(true);
  auto* copy = new QPushButton(tools_.Text(kSaveCopyRow), this);
  copy->setObjectName(QStringLiteral("CommandCopia"));
  copy->setToolTip(tools_.Text(kSaveCopyTipRow));
  copy->setAutoDefault(false);
  copy->setVisible(with_copy);
  auto* cancel = new QPushButton(tools_.Text(kCancelRow), this);
  cancel->setObjectName(QStringLiteral("Command2"));
  cancel->setAutoDefault(false);
  row->addStretch(1);
  row->addWidget(copy);
  row->addWidget(save);
  row->addWidget(cancel);
  connect(copy, &QPushButton::clicked, this, [this] { Save(true); });
  connect(save, &QPushButton::clicked, this, [this] { Save(false); });
  connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
  return row;
}

void EditorDialog::Finish(FieldBoxes boxes) {
  boxes_ = std::move(boxes);
  shell::SetMnemonics(*this);
  if (!shell::RestoreSizes(tools_.memory, {memory_name_, this, nullptr, nullptr})) resize(sizeHint());
  LeadTo(materials::kNameField);
}

void EditorDialog::LeadTo(const materials::EntryField& field) {
  const auto found = boxes_.find(field);
  if (found == boxes_.end()) return;
  found->second->setFocus();
  found->second->selectAll();
}

void EditorDialog::Save(bool as_copy) {
  // Enter saves from within a box, whose number still has to reach the boxes that follow from it.
  if (auto* box = dynamic_cast<NumberBox*>(focusWidget())) box->Leave();
  const AskUser ask = [this](const Message& question) { return tools_.Ask(tools_.Text(question)); };
  const SaveOutcome outcome = as_copy ? StoreCopy(shell::ToUtf8(tools_.Text(kCopyNameRow)), ask) : Store(ask);
  if (outcome.refusal) {
    tools_.Tell(tools_.Text(outcome.refusal->message));
    if (outcome.refusal->field) LeadTo(*outcome.refusal->field);
    return;
  }
  if (!outcome.done) return;
  change_ = outcome.change;
  accept();
}

void EditorDialog::reject() {
  if (Changed() && !tools_.Ask(tools_.Text(kUnsavedMaterialRow))) return;
  QDialog::reject();
}

}  // namespace velmar::material_editors
