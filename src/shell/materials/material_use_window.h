#pragma once

#include <QDialog>
#include <QTimer>
#include <atomic>
#include <functional>
#include <future>
#include <string>

#include "shell/windows/window_tools.h"
#include "storage/project/material_uses.h"

class QLabel;
class QPlainTextEdit;
class QTreeWidget;

namespace velmar::shell {

/// Which projects use a material. The search runs beside the window and is given up when that closes.
class MaterialUseWindow : public QDialog {
 public:
  /// Looks for the projects; called beside the window, so it may touch no widget. True in `stop` ends it.
  using Search = std::function<storage::MaterialUses(const std::atomic<bool>& stop)>;

  /// @param name of the material
  MaterialUseWindow(const WindowTools& tools, const std::string& name, const Search& search,
                    QWidget* parent = nullptr);
  ~MaterialUseWindow() override;

 private:
  void Show(const storage::MaterialUses& uses);

  WindowTools tools_;
  std::atomic<bool> stop_{false};
  std::future<storage::MaterialUses> found_{};
  QTimer look_{};  ///< for the end of the search
  QLabel* said_ = nullptr;
  QTreeWidget* list_ = nullptr;
  QPlainTextEdit* unreadable_ = nullptr;
};

}  // namespace velmar::shell
