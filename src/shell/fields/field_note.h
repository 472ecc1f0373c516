#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace velmar::shell {

/// How long a note stands.
enum class NoteLife {
  kWhileRead,     ///< a correction that is done already: it goes by itself
  kUntilEntered,  ///< something is still to be corrected: it goes with the next key in the field
};

/// A short message beside a field: a frame around the field and the words under it, above the page, so that
/// nothing moves; where other fields or their captions stand under it the words take the nearest free place
/// that is seen, and are led to. The frame stays around the field when the page is laid out anew. The words
/// become the field's accessible description as long as they stand.
class FieldNote : public QWidget {
 public:
  /// Puts `text` beside `field`, in place of any other note of its window.
  static void Put(QWidget* field, const QString& text, NoteLife life);
  /// Takes away the note of `window`: what it was about is no longer there.
  static void Remove(const QWidget* window);
  /// The words beside `field`, empty when none stand there.
  static QString TextAt(const QWidget* field);

  ~FieldNote() override;

  /// Where the words stand, in the coordinates of the page that they lie on.
  QRect Words() const { return words_frame_.translated(pos()); }
  /// Where the frame around the field stands, likewise.
  QRect Frame() const { return field_frame_.translated(pos()); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  FieldNote(QWidget* field, QWidget* page, QString text);
  void Place();
  /// A page that is resized has not yet moved what it holds.
  void PlaceWhenLaidOut();
  /// Where the words beside `field` stand, both in the coordinates of the page.
  QRect PlaceOfWords(const QRect& field) const;
  /// The room of the words in lines of at most `width` pixels.
  QSize WordsWithin(int width) const;
  /// The note that stands in `window`, null without one.
  static FieldNote* NoteIn(const QWidget* window);

  QPointer<QWidget> field_;
  QString text_;
  QString described_before_;
  QRect field_frame_;
  QRect words_frame_;
  QTimer end_;
  QTimer laid_out_;
};

}  // namespace velmar::shell
