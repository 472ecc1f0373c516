#pragma once

#include <QComboBox>
#include <string>
#include <vector>

namespace velmar::material_editors {

/// The keyword of a material: typed freely, with the keywords in use to choose from. The wheel moves it only
/// while it has the focus.
class KeywordBox : public QComboBox {
 public:
  KeywordBox(const QString& object_name, const std::vector<std::string>& keywords, QWidget* parent = nullptr);

 protected:
  void wheelEvent(QWheelEvent* event) override;
};

}  // namespace velmar::material_editors
