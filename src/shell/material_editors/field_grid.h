#pragma once

#include <filesystem>
#include <map>

#include "elements/plausibility.h"
#include "foundation/message.h"
#include "materials/material_entry.h"
#include "shell/windows/window_tools.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;

namespace velmar::material_editors {

class NumberBox;

/// The boxes of an editor by what they hold of the entry.
using FieldBoxes = std::map<materials::EntryField, QLineEdit*>;

/// The boxes of an editor below each other, their words before them. Beside the number boxes there is room
/// for a picture.
class FieldGrid {
 public:
  /// @param window owns the controls
  FieldGrid(const shell::WindowTools& tools, QWidget* window);

  QGridLayout* Layout() const { return grid_; }
  /// The row that comes next.
  int NextRow() const { return next_row_; }
  /// The name and the numbers so far.
  const FieldBoxes& Boxes() const { return boxes_; }

  /// `box` over the whole width, behind the words of `caption`, which also give its accessible name.
  /// @param tip row that explains the value in one sentence, 0 for none
  void Add(MessageRow caption, QWidget* box, MessageRow tip = {});
  /// The box of the name (`Text1`).
  QLineEdit* AddName();
  QLineEdit* AddText(const char* object_name, MessageRow caption);
  NumberBox* AddNumber(elements::MaterialProperty property, const char* object_name, MessageRow caption,
                       MessageRow tip = {});
  /// A control that brings its own words.
  void AddWhole(QWidget* control);
  /// A quiet remark.
  QLabel* AddRemark(MessageRow text);
  /// Room between two groups of boxes.
  void AddGap();
  /// The picture in `file` (`Picture1`) beside the number boxes from row `first_row` to the last one so far.
  void AddPicture(const std::filesystem::path& file, int first_row);

 private:
  void Name(MessageRow caption, QWidget* box, MessageRow tip);

  const shell::WindowTools& tools_;
  QWidget* window_;
  QGridLayout* grid_;
  int next_row_ = 0;
  FieldBoxes boxes_;
};

}  // namespace velmar::material_editors
