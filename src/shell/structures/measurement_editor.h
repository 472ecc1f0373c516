#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "measurements/measurement_entry.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/boxes.h"
#include "shell/windows/window_tools.h"

class QComboBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace velmar::shell {
class NumberField;
class PictureView;
}  // namespace velmar::shell

namespace velmar::structures {

class MeasurementBands;

/// What an editor of a measurement is opened for.
struct MeasurementToEdit {
  Branch branch = Branch::kWalls;
  std::optional<storage::MeasuredTest> test{};  ///< nothing: a new one
};

/// "Nuova misura" and "Modifica misura": a test of the user's own, from a laboratory or in situ. The rating
/// that the bands give stands beside the one that the certificate prints. Without boxes that ask for files
/// the buttons for them are not there.
class MeasurementEditor : public QDialog {
  Q_OBJECT
 public:
  MeasurementEditor(shell::WindowTools tools, OwnMeasurementSource own, MeasurementToEdit edited,
                    QWidget* parent = nullptr);
  ~MeasurementEditor() override;

  Branch Kind() const;
  /// The name under which the measurement was stored; empty before.
  const std::string& StoredName() const { return stored_name_; }

  void reject() override;

 private:
  QWidget* MakeTexts();
  QWidget* MakeValues();
  QWidget* MakeRating();
  QWidget* MakePicture();
  QWidget* MakeButtons();
  QLineEdit* AddText(QFormLayout& form, const char* name, MessageRow caption);
  shell::NumberField* AddNumber(QFormLayout& form, const char* name, MessageRow caption);
  void ChooseKind();
  void Show(const measurements::MeasurementEntry& entry);
  measurements::MeasurementEntry Entry() const;
  void ShowRating();
  void ShowPicture(const std::string& picture);
  void ChoosePicture();
  void ReadFile();
  void Save();
  QLineEdit* BoxOf(const measurements::MeasurementRefusal& refusal) const;
  /// Tells why and leads to the box in question.
  void Refuse(const measurements::MeasurementRefusal& refusal);

  shell::WindowTools tools_;
  OwnMeasurementSource own_;
  MeasurementToEdit edited_;
  measurements::MeasurementEntry shown_first_;
  std::string picture_name_;
  std::string stored_name_;
  QComboBox* kind_ = nullptr;
  QLineEdit* name_ = nullptr;
  QPlainTextEdit* description_ = nullptr;
  std::vector<QLineEdit*> texts_;             ///< keyword to notes
  std::vector<shell::NumberField*> numbers_;  ///< area to receiving volume
  QLineEdit* site_ = nullptr;
  QGroupBox* in_situ_ = nullptr;
  std::array<shell::NumberField*, 3> printed_{};  ///< rating and its two terms
  std::array<QLabel*, 3> printed_captions_{};
  QLabel* computed_ = nullptr;
  QLabel* verdict_ = nullptr;
  MeasurementBands* bands_ = nullptr;
  std::map<measurements::MeasurementField, QLineEdit*> boxes_;  ///< but the bands
  shell::PictureView* picture_ = nullptr;
};

}  // namespace velmar::structures
