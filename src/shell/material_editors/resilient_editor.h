#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "elements/materials.h"
#include "materials/coupled_boxes.h"
#include "shell/material_editors/editor_dialog.h"

class QLabel;
class QLineEdit;

namespace velmar::material_editors {

class KeywordBox;
class NumberBox;

/// "materiale resiliente": `Form6` with the boxes of a row of the resilient materials.
class ResilientEditor : public EditorDialog {
 public:
  /// @param keywords what the keyword box suggests
  /// @param picture file that the row's picture is in
  ResilientEditor(shell::WindowTools tools, EditedMaterial<elements::ResilientMaterial> material,
                  const std::vector<std::string>& keywords, const std::filesystem::path& picture,
                  QWidget* parent = nullptr);

 protected:
  bool Changed() const override;
  SaveOutcome Store(const AskUser& ask) override;
  SaveOutcome StoreCopy(const std::string& mark, const AskUser& ask) override;

 private:
  /// @return the boxes to which refusals lead
  FieldBoxes MakeControls(const std::vector<std::string>& keywords, const std::filesystem::path& picture);
  void Show(const materials::ResilientEntry& entry);
  materials::ResilientEntry Entry() const;
  void Couple(materials::ResilientBox left, bool edited);
  void ShowStandard();

  EditedMaterial<elements::ResilientMaterial> material_;
  materials::ResilientEntry shown_first_;
  QLineEdit* name_ = nullptr;         ///< `Text1`
  QLineEdit* description_ = nullptr;  ///< `Text2`
  NumberBox* stiffness_ = nullptr;    ///< `Text3`
  NumberBox* improvement_ = nullptr;  ///< `Text4`
  NumberBox* resonance_ = nullptr;    ///< `Text5`
  QLabel* standard_ = nullptr;        ///< what EN ISO 12354-2 gives
  NumberBox* thickness_ = nullptr;    ///< `Text6`
  NumberBox* density_ = nullptr;      ///< `Text7`
  KeywordBox* keyword_ = nullptr;     ///< `Text8`
  QLineEdit* source_ = nullptr;       ///< `TextFonte`
};

}  // namespace velmar::material_editors
