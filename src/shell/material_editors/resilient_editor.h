#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "elements/materials.h"
#include "shell/material_editors/editor_dialog.h"
#include "storage/materials/coupled_boxes.h"

class QLineEdit;

namespace velmar::material_editors {

class KeywordBox;
class NumberBox;

/// "materiale resiliente": `Form6` with the boxes of a row of the resilient materials.
class ResilientEditor : public EditorDialog {
 public:
  /// @param keywords what the keyword box suggests
  /// @param picture file that the row's picture is in
  ResilientEditor(windows::WindowTools tools, EditedMaterial<elements::ResilientMaterial> material,
                  const std::vector<std::string>& keywords, const std::filesystem::path& picture,
                  QWidget* parent = nullptr);

 protected:
  bool Changed() const override;
  SaveOutcome Store(const AskUser& ask) override;

 private:
  void MakeControls(const std::vector<std::string>& keywords, const std::filesystem::path& picture);
  void Show(const storage::ResilientEntry& entry);
  storage::ResilientEntry Entry() const;
  void Couple(storage::ResilientBox left, bool edited);

  EditedMaterial<elements::ResilientMaterial> material_;
  storage::ResilientEntry shown_first_;
  QLineEdit* name_ = nullptr;         ///< `Text1`
  QLineEdit* description_ = nullptr;  ///< `Text2`
  NumberBox* stiffness_ = nullptr;    ///< `Text3`
  NumberBox* improvement_ = nullptr;  ///< `Text4`
  NumberBox* resonance_ = nullptr;    ///< `Text5`
  NumberBox* thickness_ = nullptr;    ///< `Text6`
  NumberBox* density_ = nullptr;      ///< `Text7`
  KeywordBox* keyword_ = nullptr;     ///< `Text8`
};

}  // namespace velmar::material_editors
