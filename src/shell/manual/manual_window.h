#pragma once

#include <QDialog>
#include <QString>
#include <string>
#include <vector>

#include "presentation/manual/manual_headings.h"
#include "presentation/texts/words.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTextBrowser;
class QTreeWidget;

namespace velmar::shell {

/// The user manual in a window: contents, search with the number of its hits, and text. It blocks nothing.
class ManualWindow : public QDialog {
  Q_OBJECT
 public:
  /// @param markdown the manual's text
  /// @param folder where its pictures lie
  ManualWindow(const presentation::Words& words, const QString& markdown, const QString& folder,
               QWidget* parent);

  /// Brings the heading of `anchor` to the upper edge; an unknown one leaves the text where it is.
  void ShowChapter(const std::string& anchor);

  /// The heading that the upper edge of the text belongs to.
  std::string ChapterShown() const;

 signals:
  /// The user wants the manual for paper.
  void PdfWanted();

 private:
  void MakeText(const QString& markdown, const QString& folder);
  void DressText(const QString& folder);
  void FindHeadings(const std::string& markdown);
  void FillContents();
  void Search(bool backward);
  int CountOf(const QString& wanted) const;
  void GoTo(int position);
  void GoBack();
  bool eventFilter(QObject* watched, QEvent* event) override;

  struct Heading {
    presentation::ManualHeading heading{};
    int position = 0;  ///< in the document
  };

  const presentation::Words words_;
  QTreeWidget* contents_ = nullptr;
  QTextBrowser* text_ = nullptr;
  QLineEdit* search_ = nullptr;
  QLabel* found_ = nullptr;
  QPushButton* back_ = nullptr;
  std::vector<Heading> headings_{};
  std::vector<int> visited_{};  ///< where the text stood before each jump
};

}  // namespace velmar::shell
