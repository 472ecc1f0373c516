#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "elements/setup.h"

class QGroupBox;
class QWidget;

namespace velmar::shell {

class NumberField;

/// The 21 boxes of a spectrum that is typed or taken over, three columns of seven.
class BandBoxes {
 public:
  /// @param name control name of the boxes: `Text13` gives `Text13_0` to `Text13_20`
  BandBoxes(const QString& frame_name, const QString& name, QWidget* page);

  QGroupBox* Frame() const { return frame_; }
  void OnEdit(const std::function<void(std::size_t band, const std::string& text)>& on_edit);
  void Show(const elements::BandTexts& texts, const QString& caption);

 private:
  QGroupBox* frame_ = nullptr;
  std::vector<NumberField*> boxes_;
};

}  // namespace velmar::shell
