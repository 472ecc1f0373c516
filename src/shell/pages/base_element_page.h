#pragma once

#include "shell/page_parts/page_context.h"
#include "shell/pages/page.h"

class QCheckBox;
class QLabel;

namespace velmar::shell {

class ElementForm;
class NumberField;

/// The opaque part of a facade, or the wall or floor under a lining or ceiling.
class BaseElementPage : public Page {
 public:
  explicit BaseElementPage(PageContext& context, QWidget* parent = nullptr);

  void Show(const elements::Setup& setup) override;
  /// Where the element is named or chosen.
  QWidget* NameField() const;

 private:
  void AddPlainBase();

  PageContext& context_;
  ElementForm* form_ = nullptr;
  QCheckBox* simplified_ = nullptr;
  QLabel* thickness_label_ = nullptr;
  NumberField* thickness_ = nullptr;
  QLabel* mass_label_ = nullptr;
  NumberField* mass_ = nullptr;
};

}  // namespace velmar::shell
