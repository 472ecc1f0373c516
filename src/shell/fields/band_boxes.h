#pragma once

#include <QGroupBox>
#include <vector>

#include "elements/setup.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

class NumberField;

/// The 21 boxes of a spectrum that is typed or taken over, three columns of seven. A column of numbers pasted
/// into a box fills the boxes from there on; all of them can be copied as a column.
class BandBoxes : public QGroupBox {
  Q_OBJECT

 public:
  /// @param name control name of the boxes: `Text13` gives `Text13_0` to `Text13_20`
  BandBoxes(const QString& frame_name, const QString& name, const presentation::Words& words, QWidget* page);

  const std::vector<NumberField*>& Boxes() const { return boxes_; }
  void Show(const elements::BandTexts& texts, const QString& caption);

  /// Puts what the clipboard holds into the boxes from `band` on; nothing when it is no spectrum, which the
  /// box says.
  void Paste(std::size_t band);
  /// Puts the values into the clipboard, a line each.
  void Copy() const;

 signals:
  void Edited(std::size_t band, const std::string& text);
  /// Several boxes changed at once.
  void Pasted(const velmar::elements::BandTexts& texts);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::vector<NumberField*> boxes_;
  elements::BandTexts texts_{};  ///< as the set-up holds them, with every digit
};

}  // namespace velmar::shell
