#pragma once

#include <QString>

#include "foundation/catalogue_rows.h"
#include "foundation/message.h"
#include "shell/page_parts/material_lists.h"
#include "shell/page_parts/page_context.h"

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

namespace velmar::shell {

class CountBox;
class FilterBox;

/// Space around and within a page, pixels.
inline constexpr int kPageMargin = 16;
inline constexpr int kPageSpacing = 8;

/// The outer layout of a page.
QVBoxLayout* PageLayout(QWidget* page);

/// A line of fields, left-aligned.
QHBoxLayout* AddLine(QVBoxLayout& column);

/// A label with the words of `row`, put before `field`.
QLabel* LabelFor(QWidget* field, MessageRow row, const PageContext& context, QWidget* page);

/// Count of materials and keyword filter, the line over a table of layers.
struct TableHead {
  QHBoxLayout* line = nullptr;  ///< more may stand behind
  CountBox* count = nullptr;
  FilterBox* filter = nullptr;
  QLabel* count_label = nullptr;
  QLabel* filter_label = nullptr;
};
struct TableHeadPlan {
  const char* count_name = "";
  int lowest = 1;
  int highest = 1;
  MessageRow count_label = kMaterialCountRow;
  QString filter_name{};  ///< empty: the table has no filter
  FilterId filter = FilterId::kLeaf1;
  MessageRow filter_label = kMaterialTypeFilterRow;
};
TableHead AddTableHead(const TableHeadPlan& plan, PageContext& context, QVBoxLayout& column, QWidget* page);

/// Shows the keywords that `filter` offers and the chosen one.
void ShowFilter(FilterBox& box, FilterId filter, const PageContext& context);

}  // namespace velmar::shell
