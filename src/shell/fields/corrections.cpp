#include "shell/fields/corrections.h"

#include "foundation/message_rows.h"
#include "shell/fields/field_note.h"
#include "shell/fields/list_boxes.h"
#include "shell/fields/material_box.h"
#include "shell/fields/number_field.h"
#include "shell/fields/phrases.h"

namespace velmar::shell {
namespace {

MessageRow RowFor(Correction correction) {
  switch (correction) {
    case Correction::kUnfinished:
      return kNumberKeptRow;
    case Correction::kNotPositive:
      return kThicknessCorrectedRow;
    case Correction::kAboveHighest:
      return kCountCorrectedRow;
    case Correction::kUnknownMaterial:
      return kMaterialKeptRow;
    case Correction::kRaised:
      return kDepthCorrectedRow;
  }
  return {};
}

/// The fields of a kind; they are told apart by their C++ type alone.
template <typename Field, typename QtBase>
void Connect(const QWidget& window, const presentation::Words& words) {
  for (QtBase* widget : window.findChildren<QtBase*>()) {
    auto* field = dynamic_cast<Field*>(widget);
    if (field == nullptr) continue;
    field->ReportCorrections([field, words](Correction correction, int limit) {
      NoteCorrection(field, correction, limit, words);
    });
  }
}

}  // namespace

void NoteCorrection(QWidget* field, Correction correction, int limit, const presentation::Words& words) {
  QString text = Text(words, RowFor(correction));
  if (correction == Correction::kAboveHighest) text += ' ' + QString::number(limit);
  FieldNote::Put(field, text, NoteLife::kWhileRead);
}

void NoteCorrections(const QWidget& window, const presentation::Words& words) {
  Connect<NumberField, QLineEdit>(window, words);
  Connect<CountBox, QComboBox>(window, words);
  Connect<MaterialBox, QComboBox>(window, words);
}

}  // namespace velmar::shell
