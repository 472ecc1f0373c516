#pragma once

#include <QPalette>
#include <QProxyStyle>

class QApplication;

namespace velmar::shell {

/// Fusion outlines its fields and checks with a darker shade of the window, which a dark window swallows. On
/// a dark palette this style adds an outline that can be seen; on a light one it changes nothing.
class DarkOutlines : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
};

/// The outline of what the program draws itself on `palette`: that of Fusion, or one that a dark window
/// shows.
QColor QuietOutline(const QPalette& palette);

/// Gives `application` these outlines where its style is Fusion.
void AddDarkOutlines(QApplication& application);

}  // namespace velmar::shell
