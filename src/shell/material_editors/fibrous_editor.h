#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "elements/materials.h"
#include "shell/material_editors/editor_dialog.h"

class QLineEdit;
class QRadioButton;

namespace velmar::material_editors {

class AbsorptionPanel;
class KeywordBox;
class NumberBox;

/// "Materiale fibroso": `Form6` with the boxes of a row of the fibrous materials. The option decides which of
/// them count.
class FibrousEditor : public EditorDialog {
 public:
  /// @param keywords what the keyword box suggests
  /// @param picture file that the row's picture is in
  FibrousEditor(shell::WindowTools tools, EditedMaterial<elements::FibrousMaterial> material,
                const std::vector<std::string>& keywords, const std::filesystem::path& picture,
                QWidget* parent = nullptr);

 protected:
  bool Changed() const override;
  SaveOutcome Store(const AskUser& ask) override;
  SaveOutcome StoreCopy(const std::string& mark, const AskUser& ask) override;

 private:
  /// @return the boxes to which refusals lead
  FieldBoxes MakeControls(const std::vector<std::string>& keywords, const std::filesystem::path& picture);
  void Show(const materials::FibrousEntry& entry);
  materials::FibrousEntry Entry() const;
  void EnableWhatCounts();
  void ComputeAbsorption();

  EditedMaterial<elements::FibrousMaterial> material_;
  materials::FibrousEntry shown_first_;
  materials::FibrousEntry computed_from_;  ///< the boxes when "Calcola" was pressed
  QLineEdit* name_ = nullptr;              ///< `Text1`
  QLineEdit* description_ = nullptr;       ///< `Text2`
  NumberBox* thickness_ = nullptr;         ///< `Text10`
  NumberBox* density_ = nullptr;           ///< `Text9`
  QRadioButton* porous_ = nullptr;         ///< `Option1`(0)
  NumberBox* flow_resistance_ = nullptr;   ///< `Text14`
  QRadioButton* solid_ = nullptr;          ///< `Option1`(1)
  NumberBox* youngs_modulus_ = nullptr;    ///< `Text11`
  NumberBox* loss_factor_ = nullptr;       ///< `Text12`
  NumberBox* poissons_ratio_ = nullptr;    ///< `Text13`
  KeywordBox* keyword_ = nullptr;          ///< `Text8`
  QLineEdit* source_ = nullptr;            ///< `TextFonte`
  AbsorptionPanel* absorption_ = nullptr;
};

}  // namespace velmar::material_editors
