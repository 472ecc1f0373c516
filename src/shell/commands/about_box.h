#pragma once

#include <QDialog>
#include <functional>

#include "presentation/texts/words.h"

namespace velmar::shell {

/// The about box (`About_VELMAR`).
class AboutBox : public QDialog {
 public:
  /// @param version three numbers joined by points
  /// @param website empty: none is shown
  AboutBox(const presentation::Words& words, const QString& version, const QString& website,
           std::function<void()> open_website, QWidget* parent = nullptr);
};

}  // namespace velmar::shell
