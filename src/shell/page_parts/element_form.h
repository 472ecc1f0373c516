#pragma once

#include <QWidget>
#include <vector>

#include "shell/fields/band_boxes.h"
#include "shell/page_parts/page_context.h"

class QCheckBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace velmar::shell {

class ElementName;
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
/// adaptation terms, band values. Labels and fields stand in columns.
class ElementForm : public QWidget {
  Q_OBJECT

 public:
  /// @param element 0: the base element; 1 to 9: a component
  ElementForm(int element, const ElementNames& names, PageContext& context, QWidget* parent);

  void Show(const elements::Setup& setup);
  void SetNameLabel(const QString& text);
  QWidget* NameField() const;
  /// Whether the area is asked for: a lining has none.
  void ShowArea(bool shown);
  /// The rating is open for entry even where the bands count.
  void KeepRatingOpen(bool open) { rating_always_open_ = open; }
  /// Stands behind the area.
  void AddBehindArea(QWidget* widget);
  /// A further line of fields under the ratings, above the band values.
  void AddLine(QLabel* label, const std::vector<QWidget*>& fields);

 private:
  void AddName(const ElementNames& names);
  void AddDescription(const ElementNames& names);
  void AddArea(const ElementNames& names);
  void AddSmallElementCheck(const QString& area_name);
  void AddRatings(const ElementNames& names);
  void AddBands(const ElementNames& names);
  template <typename BoxOf>
  void Enter(BoxOf&& box_of, const std::string& text);

  int element_;
  PageContext& context_;
  QGridLayout* grid_ = nullptr;
  int line_ = 0;
  ElementName* name_ = nullptr;
  QLabel* name_label_ = nullptr;
  QLineEdit* description_ = nullptr;
  QLabel* area_label_ = nullptr;
  NumberField* area_ = nullptr;
  QCheckBox* small_ = nullptr;  ///< of a component alone
  QHBoxLayout* area_line_ = nullptr;
  QLabel* rating_label_ = nullptr;
  NumberField* rating_ = nullptr;
  QWidget* terms_ = nullptr;
  NumberField* c_ = nullptr;
  NumberField* ctr_ = nullptr;
  BandBoxes* bands_ = nullptr;
  bool rating_always_open_ = false;
};

}  // namespace velmar::shell
