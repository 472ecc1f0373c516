#include "shell/fields/corrections.h"

#include "foundation/message_rows.h"
#include "shell/fields/field_note.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

MessageRow RowFor(Correction correction) {
  switch (correction) {
    case Correction::kUnfinished:
      return kNumberKeptRow;
    case Correction::kNoNumber:
      return kPasteRefusedRow;
    case Correction::kNotPositive:
      return kThicknessCorrectedRow;
    case Correction::kAboveHighest:
      return kCountCorrectedRow;
    case Correction::kUnknownMaterial:
      return kMaterialKeptRow;
    case Correction::kNoHit:
      return kNoHitRow;
    case Correction::kNoKeyword:
      return kNoKeywordHitRow;
    case Correction::kNoEntry:
      return kNoEntryHitRow;
    case Correction::kRaised:
      return kDepthCorrectedRow;
  }
  return {};
}

}  // namespace

void NoteCorrection(QWidget* field, Correction correction, int limit, const presentation::Words& words) {
  QString text = Text(words, RowFor(correction));
  if (correction == Correction::kAboveHighest) text += ' ' + QString::number(limit);
  const bool waits = correction == Correction::kNoHit || correction == Correction::kNoKeyword ||
                     correction == Correction::kNoEntry;
  FieldNote::Put(field, text, waits ? NoteLife::kUntilEntered : NoteLife::kWhileRead);
}

}  // namespace velmar::shell
