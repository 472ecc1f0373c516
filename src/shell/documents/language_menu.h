#pragma once

#include <QMenu>

#include "presentation/texts/words.h"
#include "shell/documents/document_services.h"

namespace velmar::shell {

/// "Lingua dei documenti": the language of the documents that this run writes, or that of the studio profile.
class LanguageMenu : public QMenu {
  Q_OBJECT
 public:
  /// @param documents whose language is chosen; outlives the menu
  LanguageMenu(DocumentServices& documents, const presentation::Words& words, QWidget* parent);
};

}  // namespace velmar::shell
