#pragma once

#include <QGroupBox>
#include <QString>
#include <array>
#include <string>
#include <vector>

#include "measurements/measurement_entry.h"
#include "shell/windows/window_tools.h"

class QLineEdit;

namespace velmar::shell {
class NumberField;
}

namespace velmar::structures {

/// The boxes of the third-octave and octave values of a measurement. A table pasted into any of them, or read
/// by the buttons, fills them all.
class MeasurementBands : public QWidget {
  Q_OBJECT
 public:
  explicit MeasurementBands(const shell::WindowTools& tools, QWidget* parent = nullptr);

  void Show(const measurements::MeasurementEntry& entry);
  /// Puts what the boxes hold into `entry`.
  void Take(measurements::MeasurementEntry& entry) const;
  /// The box of third-octave band `band` (`TextBanda`), and the one of octave band `band` (`TextOttava`).
  QLineEdit* Third(std::size_t band) const;
  QLineEdit* Octave(std::size_t band) const;

  /// Fills the boxes from `text`; what cannot be taken is told line by line, and nothing is taken then.
  /// @param symbol of the levels, such as "R"
  void Read(const QString& text, const std::string& symbol);
  /// The symbol by which a pasted table's columns are told apart.
  void SetSymbol(const std::string& symbol) { symbol_ = symbol; }

 signals:
  void Changed();
  /// "Leggi da file".
  void FileAsked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* MakeThirds();
  QWidget* MakeOctaves();
  shell::NumberField* MakeBox(const QString& name, const QString& caption, QWidget* parent);

  shell::WindowTools tools_;
  std::string symbol_ = "R";
  std::vector<shell::NumberField*> thirds_;
  std::vector<shell::NumberField*> octaves_;
};

}  // namespace velmar::structures
