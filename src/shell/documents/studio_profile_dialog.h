#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "elements/studio_profile.h"
#include "shell/documents/document_services.h"
#include "shell/windows/boxes.h"
#include "storage/profile/studio_profile_store.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;

namespace velmar::shell {

class StudioPictureBox;

/// "Profilo dello studio": what stands on every document, with a preview of the head of a page. A text that
/// is too long is told beside it and cannot be saved; Esc leaves the profile as it was.
class StudioProfileDialog : public QDialog {
  Q_OBJECT
 public:
  /// @param documents whose data folder keeps the profile
  /// @param speech outlives the dialog
  StudioProfileDialog(const DocumentServices& documents, const Speech& speech, QWidget* parent = nullptr);

 private:
  struct TypedField {
    const elements::StudioField* field = nullptr;
    QWidget* box = nullptr;
    std::function<QString()> text{};
    std::function<void(const QString&)> set{};
    QLabel* note = nullptr;
  };

  void AddFields(QFormLayout& form);
  elements::StudioProfile Entered() const;
  void Fill(const elements::StudioProfile& profile);
  /// Shows what does not fit and the preview. @return whether everything may be saved
  bool Follow();
  void ShowPreview(const elements::StudioProfile& profile);
  void Save();

  storage::StudioProfileStore store_;
  const Speech& speech_;
  std::vector<TypedField> fields_{};
  QComboBox* language_ = nullptr;
  StudioPictureBox* logo_ = nullptr;
  StudioPictureBox* signature_ = nullptr;
  QLabel* preview_ = nullptr;
  QLabel* note_ = nullptr;
  QPushButton* save_ = nullptr;
};

}  // namespace velmar::shell
