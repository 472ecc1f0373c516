#pragma once

#include <QWidget>
#include <optional>

namespace velmar::shell {

/// A share of a whole as a bar with its number: "37 %".
class ShareBar : public QWidget {
  Q_OBJECT

 public:
  explicit ShareBar(QWidget* parent = nullptr);

  /// @param percent 0 to 100; nothing leaves the place empty
  void Show(const std::optional<double>& percent);

  QString Text() const;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::optional<double> percent_{};
};

}  // namespace velmar::shell
