#pragma once

#include <QDialog>

#include "calculation/open/open_calculation.h"
#include "presentation/texts/words.h"

namespace velmar::shell {

/// The project information (`Form11`): eight lines of caption and value. OK takes over what changed.
class ProjectInformationDialog : public QDialog {
  Q_OBJECT
 public:
  ProjectInformationDialog(calculation::OpenCalculation& open, const presentation::Words& words,
                           QWidget* parent = nullptr);
};

}  // namespace velmar::shell
