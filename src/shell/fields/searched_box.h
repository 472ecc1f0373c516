#pragma once

#include <QAbstractItemModel>
#include <QStringListModel>
#include <string>

#include "shell/fields/corrections.h"
#include "shell/fields/list_boxes.h"

namespace velmar::shell {

/// What a SearchedBox says beside itself.
struct SearchedBoxNotes {
  Correction no_hit{};   ///< nothing holds the text that was typed, which waits to be corrected
  Correction unknown{};  ///< what was chosen is not to be had: what was there before stands again
};

/// A list whose entries are found by typing any part of them. Enter, Tab and a run take the best hit of what
/// is typed; a text without a hit keeps the focus and says so, and Esc brings back the entry that counts.
class SearchedBox : public QuietBox {
  Q_OBJECT

 public:
  /// @param names what is offered; to live as long as the box
  SearchedBox(const QString& object_name, QAbstractItemModel* names, const SearchedBoxNotes& notes,
              QWidget* parent = nullptr);

  /// Shows `name` as the entry that counts. What is being typed stays.
  void Show(const std::string& name);

  /// Whether what stands in the box was typed and is not taken yet.
  bool IsTyped() const { return typed_; }

 public slots:
  /// What leaving the box does, while it keeps the focus.
  void Settle();

 signals:
  void Chosen(const std::string& name);
  void Corrected(velmar::shell::Correction correction, int limit);

 protected:
  /// Reports `name` as chosen.
  void Choose(const QString& name);
  /// What stands in the box was typed from now on.
  void MarkTyped() { typed_ = true; }
  /// @return false when nothing has what is typed in its name
  bool TakeTyped();
  /// Shows the entry that counts once more, as after another order of the list.
  void ShowAgain();

  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void OfferHits(const QString& typed);
  QStringList Names() const;

  SearchedBoxNotes notes_;
  QString shown_;
  bool typed_ = false;
  QStringListModel* hits_ = nullptr;  ///< of the completion, made with the first focus
};

}  // namespace velmar::shell
