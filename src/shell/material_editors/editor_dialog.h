#pragma once

#include <QDialog>
#include <optional>
#include <string>
#include <vector>

#include "shell/material_editors/edited_material.h"
#include "shell/material_editors/field_grid.h"
#include "shell/windows/window_tools.h"

class QHBoxLayout;

namespace velmar::material_editors {

/// What the editors of materials have in common: "Salva" stores and closes, or tells why not and leads to the
/// box in question with everything typed left as it is; closing asks before it throws entries away.
class EditorDialog : public QDialog {
 public:
  ~EditorDialog() override;

  /// What was stored; nothing when the editor was closed without.
  const std::optional<shell::MaterialChange>& Change() const { return change_; }

  void reject() override;

 protected:
  /// @param memory_name under which the window's size is remembered
  EditorDialog(shell::WindowTools tools, const QString& object_name, QString memory_name, QWidget* parent);

  /// Whether the boxes differ from what they showed first.
  virtual bool Changed() const = 0;
  /// Stores what the boxes hold.
  virtual SaveOutcome Store(const AskUser& ask) = 0;
  /// Stores what the boxes hold as a new material, `mark` behind the name where that is taken by the opened
  /// one.
  virtual SaveOutcome StoreCopy(const std::string& mark, const AskUser& ask) = 0;

  const shell::WindowTools& Tools() const { return tools_; }

  /// "Salva", "Salva come copia" where there is something to copy, and "Annulla".
  QHBoxLayout* MakeButtons(bool with_copy);
  /// To be called when all controls stand: letters for Alt, the remembered size, the focus on the name.
  /// @param boxes to which refusals lead
  void Finish(FieldBoxes boxes);

 private:
  void Save(bool as_copy);
  void LeadTo(const materials::EntryField& field);

  shell::WindowTools tools_;
  QString memory_name_;
  FieldBoxes boxes_;
  std::optional<shell::MaterialChange> change_;
};

}  // namespace velmar::material_editors
