#include "shell/documents/language_menu.h"

#include <QActionGroup>
#include <array>

#include "foundation/message_rows.h"
#include "shell/windows/phrases.h"

namespace velmar::shell {
namespace {

using elements::DocumentLanguage;

struct Choice {
  std::optional<DocumentLanguage> language{};
  MessageRow caption{};
  const char* name = "";
};
constexpr std::array kChoices = {Choice{std::nullopt, kLanguageOfProfileRow, "lingua_del_profilo"},
                                 Choice{DocumentLanguage::kItalian, kLanguageItalianRow, "lingua_it"},
                                 Choice{DocumentLanguage::kEnglish, kLanguageEnglishRow, "lingua_en"},
                                 Choice{DocumentLanguage::kBoth, kLanguageBothRow, "lingua_it_en"}};

}  // namespace

LanguageMenu::LanguageMenu(DocumentServices& documents, const presentation::Words& words, QWidget* parent)
    : QMenu(Text(words, kStudioLanguageRow), parent) {
  setObjectName("lingua_documenti");
  auto* group = new QActionGroup(this);
  for (const Choice& choice : kChoices) {
    QAction* action = addAction(Text(words, choice.caption));
    action->setObjectName(choice.name);
    action->setCheckable(true);
    action->setChecked(documents.language == choice.language);
    group->addAction(action);
    connect(action, &QAction::triggered, this,
            [&documents, language = choice.language] { documents.language = language; });
  }
}

}  // namespace velmar::shell
