#pragma once

#include <QDialog>

#include "shell/structures/structure_sources.h"
#include "shell/windows/window_tools.h"

namespace velmar::structures {

/// "Informazioni aggiuntive" (`Form10`): the further data of a measured test, to read and to copy.
class ExtraDataDialog : public QDialog {
 public:
  ExtraDataDialog(const shell::WindowTools& tools, const MeasuredTest& test, QWidget* parent = nullptr);
};

}  // namespace velmar::structures
