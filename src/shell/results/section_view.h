#pragma once

#include <QWidget>
#include <optional>

#include "presentation/drawing/section.h"

namespace velmar::shell {

/// Shows the section through the element (`Disegno`). A layer under the mouse is told; the layer whose row is
/// under the mouse lights up. The arrow keys go through the layers in the order of the drawing; a click on a
/// layer and Enter choose it.
class SectionView : public QWidget {
  Q_OBJECT
 public:
  explicit SectionView(QWidget* parent = nullptr);

  void Show(presentation::Section section);
  /// Lights the layer at `place` up; nothing: none.
  void Highlight(const std::optional<presentation::LayerPlace>& place);

  QSize sizeHint() const override { return {640, 260}; }
  QSize minimumSizeHint() const override { return {320, 130}; }

 signals:
  /// The layer under the mouse; nothing: none.
  void LayerHovered(const std::optional<velmar::presentation::LayerPlace>& place);
  /// The layer was clicked, or chosen by the keyboard.
  void LayerChosen(const velmar::presentation::LayerPlace& place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// Lights the numbered strip `steps` further on up, and says what it is.
  void Step(int steps);
  void Choose(const std::optional<presentation::LayerPlace>& place);

  presentation::Section section_;
  int highlighted_ = 0;
};

}  // namespace velmar::shell
