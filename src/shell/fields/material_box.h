#pragma once

#include <QAbstractItemModel>
#include <QStringListModel>
#include <utility>

#include "elements/layer_groups.h"
#include "shell/fields/corrections.h"
#include "shell/fields/dragged_material.h"
#include "shell/fields/facts_delegate.h"
#include "shell/fields/list_boxes.h"

class QMimeData;

namespace velmar::shell {

/// The material list of a layer row. A name is chosen from the list, found by typing any part of it, dropped,
/// or pasted. Enter, Tab and a run take the best hit of what is typed; a text without a hit keeps the focus
/// and says so, and Esc brings back the material that counts.
class MaterialBox : public QuietBox {
  Q_OBJECT

 public:
  MaterialBox(const QString& object_name, elements::MaterialFamily family, QAbstractItemModel* names,
              QWidget* parent = nullptr);

  void Show(const std::string& name);
  /// Chooses `material` as if it were dropped here. @return false when it is of another family
  bool Put(const DraggedMaterial& material);
  /// The list tells `facts` beside each name from now on.
  void Tell(FactsOf facts) { facts_ = std::move(facts); }

  void showPopup() override;

 public slots:
  /// What leaving the box does, while it keeps the focus.
  void Settle();

 signals:
  /// The list is about to open: its names may take another order now.
  void AboutToOffer();
  void Chosen(const std::string& name);
  void Corrected(velmar::shell::Correction correction, int limit);

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Choose(const QString& name);
  bool TakeTyped();
  void ShowAgain();
  void OfferHits(const QString& typed);
  QStringList Names() const;
  bool Takes(const QMimeData& mime) const;

  elements::MaterialFamily family_;
  QString shown_;
  bool typed_ = false;
  FactsOf facts_{};
  QStringListModel* hits_ = nullptr;  ///< of the completion, made with the first focus
};

}  // namespace velmar::shell
