#pragma once

#include <QWidget>
#include <memory>

#include "shell/band_boxes.h"
#include "shell/page_context.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QToolButton;
class QPushButton;

namespace velmar::shell {

class ChoiceBox;
class NameBox;
class NumberField;

/// The control names of a form.
struct ElementNames {
  QString name{};
  QString chooser{};
  QString description{};
  QString area{};
  QString rating{};
  QString rating_label{};
  QString measured{};
  QString terms_frame{};
  QString c{};
  QString ctr{};
  QString bands_frame{};
  QString bands{};
};

/// The fields that the base element and the components of a facade share: name, description, area, rating,
/// adaptation terms, band values.
class ElementForm : public QWidget {
 public:
  /// @param element 0: the base element; 1 to 9: a component
  ElementForm(int element, const ElementNames& names, PageContext& context, QWidget* parent);

  void Show(const elements::Setup& setup);
  void SetNameLabel(const QString& text);
  /// Whether the area is asked for: a lining has none.
  void ShowArea(bool shown);
  /// The rating is open for entry even where the bands count.
  void KeepRatingOpen(bool open) { rating_always_open_ = open; }
  /// Where more fields can be added below: two columns, label and field.
  QGridLayout& Grid() const { return *grid_; }
  int NextLine() { return line_++; }

 private:
  void AddName(const ElementNames& names);
  void AddNumbers(const ElementNames& names);
  void AddTerms(const ElementNames& names);
  void AddBands(const ElementNames& names);
  void TakeName(const std::string& name);
  template <typename BoxOf>
  void Enter(BoxOf&& box_of, const std::string& text);

  int element_;
  PageContext& context_;
  QGridLayout* grid_ = nullptr;
  int line_ = 0;
  NameBox* name_ = nullptr;
  QLabel* name_label_ = nullptr;
  QLineEdit* description_ = nullptr;
  QLabel* area_label_ = nullptr;
  NumberField* area_ = nullptr;
  QLabel* rating_label_ = nullptr;
  NumberField* rating_ = nullptr;
  QWidget* terms_ = nullptr;
  NumberField* c_ = nullptr;
  NumberField* ctr_ = nullptr;
  std::unique_ptr<BandBoxes> bands_;
  bool rating_always_open_ = false;
};

}  // namespace velmar::shell
