#pragma once

#include <QDialog>

#include "presentation/texts/words.h"

namespace velmar::shell {

/// The about box (`About_VELMAR`).
class AboutBox : public QDialog {
  Q_OBJECT
 public:
  /// @param version three numbers joined by points
  /// @param website empty: none is shown
  AboutBox(const presentation::Words& words, const QString& version, const QString& website,
           QWidget* parent = nullptr);

 signals:
  void WebsiteWanted();
};

}  // namespace velmar::shell
