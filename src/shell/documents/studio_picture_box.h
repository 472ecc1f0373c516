#pragma once

#include <QLabel>
#include <QWidget>
#include <string>

#include "shell/windows/boxes.h"
#include "storage/profile/studio_profile_store.h"

class QPushButton;

namespace velmar::shell {

/// A picture of the studio profile with the buttons that choose it and take it away. What is chosen is copied
/// beside the profile at once; only a profile that is written keeps it.
class StudioPictureBox : public QWidget {
  Q_OBJECT
 public:
  /// What a picture is called and how large it may be on paper.
  struct Kind {
    MessageRow caption{};
    const char* name = "";
    double width_mm = 0.0;
    double height_mm = 0.0;
  };

  /// @param store,speech outlive the box
  StudioPictureBox(const Kind& kind, const storage::StudioProfileStore& store, const Speech& speech,
                   QWidget* parent);

  /// The name under which the profile names the picture; empty for none.
  const std::string& Name() const { return name_; }
  /// Shows the picture called `name`; one that cannot be read is told beside the buttons.
  void Show(const std::string& name);

 signals:
  void Changed();

 private:
  void Choose();
  void Remove();
  void Tell(const QString& text);

  Kind kind_;
  const storage::StudioProfileStore& store_;
  const Speech& speech_;
  std::string name_;
  QLabel* picture_;
  QLabel* note_;
  QPushButton* remove_;
};

}  // namespace velmar::shell
