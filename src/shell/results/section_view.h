#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "presentation/drawing/section.h"

namespace velmar::shell {

/// Shows the section through the element (`Disegno`). A layer under the mouse is told; the layer whose row is
/// under the mouse lights up.
class SectionView : public QWidget {
 public:
  explicit SectionView(QWidget* parent = nullptr);

  void Show(presentation::Section section);
  /// Lights the layer at `place` up; nothing: none.
  void Highlight(const std::optional<presentation::LayerPlace>& place);
  void OnHover(std::function<void(const std::optional<presentation::LayerPlace>&)> on_hover) {
    on_hover_ = std::move(on_hover);
  }

  QSize sizeHint() const override { return {640, 260}; }
  QSize minimumSizeHint() const override { return {320, 130}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  presentation::Section section_;
  int highlighted_ = 0;
  std::function<void(const std::optional<presentation::LayerPlace>&)> on_hover_;
};

}  // namespace velmar::shell
