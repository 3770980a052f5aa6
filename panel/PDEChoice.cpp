// SPDX-License-Identifier: Apache-2.0
// The choice record: decoding and caching of its two texts.

#include "panel/PDEChoice.h"

#include <QTextStream>
#include <cstring>

orvek::TextEncoding PDEChoice::ppdEncoding = orvek::TextEncoding::None;

namespace {

QString shown(const QString &text) {
  return text.isNull() ? QStringLiteral("(null)") : text;
}

}  // namespace

void PDEChoice::initialize() {
  ppdEncoding = orvek::TextEncoding::UTF8;
}

std::shared_ptr<PDEChoice> PDEChoice::choiceWithChoice(ppd_choice_t *choice) {
  [[maybe_unused]] static const bool initialized = (initialize(), true);
  return std::shared_ptr<PDEChoice>(new PDEChoice(choice));
}

QString PDEChoice::userTitle() const {
  if (m_userTitle.isNull()) {
    m_userTitle = orvek::decodeField(m_choice->text, sizeof m_choice->text, ppdEncoding);
  }
  return m_userTitle;
}

QString PDEChoice::ppdTitle() const {
  if (m_ppdTitle.isNull()) {
    m_ppdTitle =
        orvek::decodeField(m_choice->choice, sizeof m_choice->choice, orvek::TextEncoding::ASCII);
  }
  return m_ppdTitle;
}

bool PDEChoice::isDefaultChoice() const {
  return std::strncmp(m_choice->choice, m_choice->option->defchoice, sizeof m_choice->choice) == 0;
}

QString PDEChoice::description() const {
  const ppd_option_t *option = m_choice->option;
  QString text;
  QTextStream(&text) << "<PDEChoice " << static_cast<const void *>(this) << " userTitle:\""
                     << shown(userTitle()) << "\" ppdTitle:\"" << shown(ppdTitle())
                     << "\" marked:" << (m_choice->marked != 0 ? "YES" : "NO")
                     << " choice:" << static_cast<int>(m_choice - option->choices) + 1 << " of "
                     << option->num_choices << '>';
  return text;
}

namespace orvek {

QString userTitle(const PDEChoice *record) {
  return record == nullptr ? QString() : record->userTitle();
}

QString ppdTitle(const PDEChoice *record) {
  return record == nullptr ? QString() : record->ppdTitle();
}

const PDEChoice *recordAt(const PDEChoiceList *list, std::size_t index) {
  return list == nullptr || index >= list->size() ? nullptr : (*list)[index].get();
}

}  // namespace orvek
