#include "shell/page_parts/element_name.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

#include "foundation/message_rows.h"
#include "shell/fields/name_box.h"
#include "shell/page_parts/element_parts.h"
#include "shell/windows/icons.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
ElementName::ElementName(int element, const ElementSourceNames& names, PageContext& context, QWidget* parent)
    : QWidget(parent), element_(element), context_(context) {
  name_ = new NameBox(names.name, context_.services.saved_results, this);
  connect(name_, &NameBox::Named, this, &ElementName::TakeName);
  context_.Watch(name_);
  setFocusProxy(name_);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(name_, 1);
  if (!names.chooser.isEmpty()) line->addWidget(MakeChooser(names.chooser));
  if (!names.measured.isEmpty()) line->addWidget(MakeMeasured(names.measured));
}

void ElementName::Show(const elements::Setup& setup) {
  Visited(setup, element_, [this](const auto& element) { name_->Show(element.name); });
}

QToolButton* ElementName::MakeChooser(const QString& name) {
  const QString words = Text(context_.Words(), kResultsDatabaseRow);
  auto* chooser = new QToolButton(this);
  chooser->setObjectName(name);
  chooser->setIcon(LineIcon("list"));
  chooser->setAutoRaise(true);
  chooser->setFocusPolicy(Qt::TabFocus);
  chooser->setToolTip(words);
  chooser->setAccessibleName(words);
  chooser->setEnabled(static_cast<bool>(context_.services.pick_saved_result));
  connect(chooser, &QToolButton::clicked, this, [this, chooser, words] {
    const auto& pick = context_.services.pick_saved_result;
    if (pick) pick(chooser->window(), {element_, words});
  });
  return chooser;
}

QPushButton* ElementName::MakeMeasured(const QString& name) {
  auto* measured = new QPushButton(Text(context_.Words(), kMeasuredDataRow), this);
  measured->setObjectName(name);
  measured->setEnabled(static_cast<bool>(context_.services.pick_measured));
  connect(measured, &QPushButton::clicked, this, [this] {
    const auto& pick = context_.services.pick_measured;
    const QString caption = element_ == 0 ? Text(context_.Words(), kOpaquePartRow) + ':'
                                          : Text(context_.Words(), kComponentOfCaptionRow) + ' ' +
                                                QString::number(element_) + ':';
    if (pick) pick(window(), {element_, caption});
  });
  return measured;
}

void ElementName::TakeName(const std::string& name) {
  const auto& read = context_.services.saved_result;
  const std::optional<calculation::FacadePart> part = read ? read(name) : std::nullopt;
  context_.Edit([&](elements::Setup& setup) {
    if (part) {
      TakePart(setup, element_, *part);
    } else {
      Visited(setup, element_, [&](auto& element) { element.name = name; });
    }
  });
}

}  // namespace velmar::shell
