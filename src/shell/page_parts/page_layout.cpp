#include "shell/page_parts/page_layout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "foundation/message_rows.h"
#include "shell/fields/filter_box.h"
#include "shell/fields/list_boxes.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
QVBoxLayout* PageLayout(QWidget* page) {
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  column->setSpacing(kPageSpacing);
  return column;
}

QHBoxLayout* AddLine(QVBoxLayout& column) {
  auto* line = new QHBoxLayout;
  line->setSpacing(kPageSpacing);
  column.addLayout(line);
  return line;
}

QLabel* LabelFor(QWidget* field, MessageRow row, const PageContext& context, QWidget* page) {
  auto* label = new QLabel(Text(context.Words(), row), page);
  label->setBuddy(field);
  return label;
}

TableHead AddTableHead(const TableHeadPlan& plan, PageContext& context, QVBoxLayout& column, QWidget* page) {
  TableHead head;
  QHBoxLayout* line = AddLine(column);
  head.line = line;
  head.count = new CountBox(plan.count_name, plan.lowest, plan.highest, page);
  head.count->setAccessibleDescription(Text(context.Words(), plan.count_label));
  head.count_label = LabelFor(head.count, plan.count_label, context, page);
  line->addWidget(head.count_label);
  line->addWidget(head.count);
  line->addSpacing(2 * kPageSpacing);
  if (!plan.filter_name.isEmpty()) {
    head.filter = new FilterBox(plan.filter_name, page);
    head.filter->setAccessibleDescription(Text(context.Words(), plan.filter_label));
    head.filter_label = LabelFor(head.filter, plan.filter_label, context, page);
    FilterBox* box = head.filter;
    MaterialLists* lists = &context.materials;
    const FilterId filter = plan.filter;
    QObject::connect(box, &FilterBox::Chosen, page, [box, lists, filter](const std::string& keyword) {
      lists->Choose(filter, FromUtf8(keyword));
      box->Show(keyword);
    });
    context.Watch(box);
    line->addWidget(head.filter_label);
    line->addWidget(box);
  }
  line->addStretch(1);
  return head;
}

void ShowFilter(FilterBox& box, FilterId filter, const PageContext& context) {
  box.Offer(context.materials.Keywords(filter));
  box.Show(ToUtf8(context.materials.Keyword(filter)));
}

}  // namespace velmar::shell
