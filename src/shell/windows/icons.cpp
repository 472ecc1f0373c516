#include "shell/windows/icons.h"

#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

static void UnpackIcons() { Q_INIT_RESOURCE(icons); }

namespace velmar::shell {
namespace {

// The colours that the drawings are made with.
constexpr const char* kInk = "#20242c";
constexpr const char* kAccent = "#0b6bcb";

QByteArray Drawing(const char* name) {
  UnpackIcons();
  QFile file(QString(":/icons/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll();
}

class LineIconEngine : public QIconEngine {
 public:
  LineIconEngine(QByteArray drawing, QPalette::ColorRole ink, bool one_colour)
      : drawing_(std::move(drawing)), ink_(ink), one_colour_(one_colour) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    QSvgRenderer renderer(Recoloured(mode));
    renderer.render(painter, QRectF(rect));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new LineIconEngine(*this); }

 private:
  QByteArray Recoloured(QIcon::Mode mode) const {
    const QPalette palette = QGuiApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor ink = palette.color(group, ink_);
    const bool dark = ink.lightness() > 127;
    QColor accent = dark ? QColor(0x6c, 0xb3, 0xff) : QColor(kAccent);
    if (mode == QIcon::Disabled || one_colour_) accent = ink;
    QByteArray drawing = drawing_;
    drawing.replace(kInk, ink.name().toLatin1());
    drawing.replace(kAccent, accent.name().toLatin1());
    return drawing;
  }

  QByteArray drawing_;
  QPalette::ColorRole ink_;
  bool one_colour_;
};

}  // namespace

QIcon LineIcon(const char* name) {
  return QIcon(new LineIconEngine(Drawing(name), QPalette::ButtonText, /*one_colour=*/false));
}

QIcon LightLineIcon(const char* name) {
  return QIcon(new LineIconEngine(Drawing(name), QPalette::HighlightedText, /*one_colour=*/true));
}

QIcon ProductIcon() { return LineIcon("velmarpro"); }

}  // namespace velmar::shell
