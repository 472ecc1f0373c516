#pragma once

#include <string>
#include <vector>

#include "elements/materials.h"
#include "materials/coupled_boxes.h"
#include "shell/material_editors/editor_dialog.h"

class QLineEdit;

namespace velmar::material_editors {

class KeywordBox;
class NumberBox;

/// "Materiale parete" (`Form5`): a row of the structural materials.
class StructuralEditor : public EditorDialog {
 public:
  /// @param keywords what the keyword box suggests
  StructuralEditor(shell::WindowTools tools, EditedMaterial<elements::StructuralMaterial> material,
                   const std::vector<std::string>& keywords, QWidget* parent = nullptr);

 protected:
  bool Changed() const override;
  SaveOutcome Store(const AskUser& ask) override;
  SaveOutcome StoreCopy(const std::string& mark, const AskUser& ask) override;

 private:
  void Show(const materials::StructuralEntry& entry);
  materials::StructuralEntry Entry() const;
  void Couple(materials::MassBox left, bool edited);

  EditedMaterial<elements::StructuralMaterial> material_;
  materials::StructuralEntry shown_first_;
  QLineEdit* name_ = nullptr;                ///< `Text1`
  QLineEdit* description_ = nullptr;         ///< `Text2`
  NumberBox* thickness_ = nullptr;           ///< `Text3`
  NumberBox* density_ = nullptr;             ///< `Text4`
  NumberBox* surface_mass_ = nullptr;        ///< `Text5`
  NumberBox* youngs_modulus_ = nullptr;      ///< `Text6`
  NumberBox* critical_frequency_ = nullptr;  ///< `Text7`
  NumberBox* loss_factor_ = nullptr;         ///< `Text8`
  NumberBox* poissons_ratio_ = nullptr;      ///< `Text9`
  KeywordBox* keyword_ = nullptr;            ///< `Text10`
  QLineEdit* source_ = nullptr;              ///< `TextFonte`
};

}  // namespace velmar::material_editors
