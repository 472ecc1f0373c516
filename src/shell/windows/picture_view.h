#pragma once

#include <QImage>
#include <QWidget>
#include <filesystem>

#include "shell/windows/window_tools.h"

namespace velmar::shell {

/// The picture of a structure or material, as large as its place allows.
class PictureView : public QWidget {
 public:
  explicit PictureView(const WindowTools& tools, QWidget* parent = nullptr);

  /// A file that is missing or no picture leaves a quiet word in its place.
  void Show(const std::filesystem::path& file);
  bool HasPicture() const { return !picture_.isNull(); }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString no_picture_;
  QImage picture_;
};

}  // namespace velmar::shell
