#pragma once

#include <QWidget>
#include <string>

#include "shell/page_parts/page_context.h"

class QPushButton;
class QToolButton;

namespace velmar::shell {

class NameBox;

/// The control names of an element's sources; an empty one leaves its button away.
struct ElementSourceNames {
  QString name{};
  QString chooser{};
  QString measured{};
};

/// What a base element or component is and where its numbers come from: its name, typed or taken from the
/// stored results, and the buttons of the stored results and of the measured data.
class ElementName : public QWidget {
 public:
  /// @param element 0: the base element; 1 to 9: a component
  ElementName(int element, const ElementSourceNames& names, PageContext& context, QWidget* parent);

  void Show(const elements::Setup& setup);

 private:
  QToolButton* MakeChooser(const QString& name);
  QPushButton* MakeMeasured(const QString& name);
  void TakeName(const std::string& name);

  int element_;
  PageContext& context_;
  NameBox* name_ = nullptr;
};

}  // namespace velmar::shell
