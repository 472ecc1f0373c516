#pragma once

#include <QDialog>
#include <QString>
#include <filesystem>
#include <functional>
#include <optional>

#include "presentation/drawing/page_scale.h"
#include "presentation/drawing/printed_page.h"
#include "presentation/texts/words.h"

class QAction;
class QLabel;
class QScrollArea;
class QToolBar;

namespace velmar::printing {

/// What the preview shows, and what its buttons do.
struct PreviewOrder {
  presentation::PaginaDiStampa page{};
  std::function<presentation::PrinterPaper()> paper{};  ///< asked anew after printing
  std::function<void(QWidget* parent)> print{};
  std::function<void(QWidget* parent)> save_pdf{};
  std::function<void(QWidget* parent)> choose_printer{};
};

/// `Form12`: the pages below each other as one picture, each fitted to the window until the user zooms.
/// Ctrl+P prints, Ctrl+S writes a PDF file, Ctrl+Shift+P chooses the printer, Ctrl+plus and Ctrl+minus zoom,
/// Ctrl+0 fits, Ctrl+1 shows the size on paper, Esc closes.
class PrintPreview : public QDialog {
 public:
  PrintPreview(PreviewOrder order, presentation::Words words, QWidget* parent = nullptr);

  /// 1 is the size on paper.
  double Zoom() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QToolBar* MakeToolBar();
  QAction* AddCommand(QToolBar& bar, const char* name, MessageRow row, const QList<QKeySequence>& keys,
                      std::function<void()> act);
  void ZoomTo(std::optional<double> zoom);
  void FollowPaper();
  void ShowPage();

  PreviewOrder order_;
  presentation::Words words_;
  presentation::PrinterPaper paper_;
  std::optional<double> zoom_;  ///< nothing: fitted to the window
  QScrollArea* room_;
  QLabel* picture_;
};

}  // namespace velmar::printing
