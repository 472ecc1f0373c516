#pragma once

#include <QWidget>
#include <array>
#include <optional>

#include "presentation/drawing/curve_chart.h"
#include "shell/structures/structure_sources.h"
#include "shell/windows/picture_view.h"
#include "shell/windows/window_tools.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace velmar::structures {

/// The curve of a measured test (`Picture1`), its scale taken from the values.
class MeasuredCurveView : public QWidget {
 public:
  explicit MeasuredCurveView(const shell::WindowTools& tools, QWidget* parent = nullptr);

  /// @param symbols of the test's branch
  void Show(const std::optional<MeasuredTest>& test, const BranchSymbols& symbols);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  presentation::CurveChart empty_;
  presentation::CurveChart chart_;
  QString no_bands_;
  bool bare_ = false;  ///< a test without band values is shown
};

/// Everything that is known of a test, to read: rating, values, curve, picture, certificate.
class TestDetails : public QWidget {
 public:
  explicit TestDetails(const shell::WindowTools& tools, QWidget* parent = nullptr);

  void Show(const std::optional<MeasuredTest>& test);
  void ShowDescription(const QString& description);
  /// What the numbers of the tests that follow are called.
  void ShowSymbols(const BranchSymbols& symbols);

 private:
  QWidget* MakeValues();
  QWidget* MakeBands();
  QWidget* MakeCertificate();
  QLineEdit* Box(const QString& name, const QString& accessible_name);

  shell::WindowTools tools_;
  BranchSymbols symbols_{};
  QLabel* rating_ = nullptr;   ///< `Label3`
  QLabel* remarks_ = nullptr;  ///< what the bands give, what the source states
  QLabel* octaves_ = nullptr;
  QPlainTextEdit* description_ = nullptr;  ///< `Text2`
  std::array<QLineEdit*, 5> values_{};     ///< `Text4`, `Text5`, `Text6`, `Text3`, surface mass
  std::array<QLabel*, 5> captions_{};
  QLabel* band_caption_ = nullptr;
  std::array<QLineEdit*, acoustics::kBandCount> bands_{};  ///< `Text1`
  std::array<QLineEdit*, 6> certificate_{};
  MeasuredCurveView* curve_ = nullptr;
  shell::PictureView* picture_ = nullptr;
};

/// What is to be known of the rating of `test`, a line: the rating that its bands give where the stated one
/// is another, the index of its source, that it has octave bands alone, its uncertainty. Empty where it has
/// nothing to say.
QString RatingRemarks(const BranchSymbols& symbols, const MeasuredTest& test,
                      const shell::WindowTools& tools);

/// "Rw(C,Ctr)= 50(-1, -5) dB", "Dnew(C,Ctr)= ...", "Lnw(Ci)= 59(1) dB"; a missing value is left out.
QString RatingLabel(const BranchSymbols& symbols, const calculation::FacadePart& part);

}  // namespace velmar::structures
