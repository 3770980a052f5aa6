// SPDX-License-Identifier: Apache-2.0
// Search above, tree, and what concerns changed options below.

#include "host/settings/OptionsPage.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/CustomValue.h"
#include "host/session/CommonSettings.h"
#include "host/settings/CustomValueForm.h"
#include "host/settings/Mnemonics.h"
#include "host/settings/OptionsModel.h"
#include "host/settings/OptionsView.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int margin = 12;
constexpr int gap = 8;

QList<OptionGroup> groupsFor(const PrintSession &session, const QStringList &claimedKeys) {
  return optionGroups(session.marks().printer(), claimedKeys + commonOptions(session),
                      session.origin().queueOptions);
}

}  // namespace

OptionsPage::OptionsPage(PrintSession &session, const QStringList &claimedKeys, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_model(new OptionsModel(session, groupsFor(session, claimedKeys), this)),
      m_view(new OptionsView(session, m_model, this)),
      m_custom(new CustomValueForm(this)),
      m_search(new QLineEdit(this)),
      m_onlyChanged(new QCheckBox(tr("Only changed"), this)),
      m_state(new PlainLabel(this)),
      m_setBack(new QPushButton(tr("Set Back"), this)),
      m_setAllBack(new QPushButton(tr("Set All Back"), this)) {
  build();
  connectParts();
  updateControls();
}

void OptionsPage::build() {
  m_search->setObjectName(QStringLiteral("search"));
  m_search->setAccessibleName(tr("Search options"));
  m_search->setPlaceholderText(tr("Search options"));
  m_search->setClearButtonEnabled(true);
  m_onlyChanged->setObjectName(QStringLiteral("onlyChanged"));
  m_state->setObjectName(QStringLiteral("changedState"));
  m_setBack->setObjectName(QStringLiteral("setBack"));
  m_setAllBack->setObjectName(QStringLiteral("setAllBack"));
  for (QPushButton *button : {m_setBack, m_setAllBack}) button->setAutoDefault(false);
  auto *top = new QHBoxLayout;
  top->setSpacing(gap);
  top->addWidget(m_search, 1);
  top->addWidget(m_onlyChanged);
  auto *bottom = new QHBoxLayout;
  bottom->setSpacing(gap);
  bottom->addWidget(m_state, 1);
  bottom->addWidget(m_setBack);
  bottom->addWidget(m_setAllBack);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(gap);
  column->addLayout(top);
  column->addWidget(m_view, 1);
  column->addWidget(m_custom);
  column->addLayout(bottom);
  setTabOrder(m_search, m_onlyChanged);
  setTabOrder(m_onlyChanged, m_view);
  setTabOrder(m_view, m_setBack);
  setTabOrder(m_setBack, m_setAllBack);
}

void OptionsPage::connectParts() {
  const auto filter = [this] {
    m_model->setFilter(m_search->text(), m_onlyChanged->isChecked());
    updateControls();
  };
  connect(m_search, &QLineEdit::textChanged, this, filter);
  connect(m_onlyChanged, &QCheckBox::toggled, this, filter);
  connect(m_view, &OptionsView::currentMoved, this, &OptionsPage::updateControls);
  connect(m_view, &OptionsView::customAsked, this, &OptionsPage::askForCustomValues);
  connect(m_custom, &CustomValueForm::choicePicked, this, [this](const QString &choice) {
    if (const OptionEntry *entry = m_model->entryAt(m_view->currentIndex()); entry != nullptr) {
      m_session.pick(entry->keyword, choice);
    }
  });
  connect(m_view, &OptionsView::setBackAsked, this, &OptionsPage::setBack);
  connect(m_setBack, &QPushButton::clicked, this, &OptionsPage::setBack);
  connect(m_setAllBack, &QPushButton::clicked, this, &OptionsPage::setAllBack);
  connect(&m_session, &PrintSession::changed, this, [this] {
    m_customOption = QString();  // picked by now, or another choice was
    updateControls();
  });
}

void OptionsPage::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  assignMnemonics(this);
}

void OptionsPage::updateControls() {
  const int changed = static_cast<int>(m_model->changed().size());
  m_setBack->setEnabled(m_model->isChangedAt(m_view->currentIndex()));
  m_setAllBack->setEnabled(changed > 0);
  QString state =
      changed == 1 ? tr("1 option changed") : tr("%n options changed", nullptr, changed);
  if (changed == 0) state = tr("No option changed");
  if (m_model->rowCount() == 0) {
    state = m_model->isFiltered() ? tr("No option found") : tr("This printer has no more options");
  }
  m_state->setText(state);
  updateCustomValues();
}

// The fields are those of the current row, where its choice is custom or about to be.
void OptionsPage::updateCustomValues() {
  const OptionEntry *entry = m_model->entryAt(m_view->currentIndex());
  const QString option = entry == nullptr ? QString() : entry->keyword;
  const QString marked = m_session.marks().marked(option);
  const bool isCustom = isCustomChoice(marked);
  if (isCustom || option != m_customOption) m_customOption = QString();
  const bool isOpen = isCustom || !m_customOption.isNull();
  const auto parameters =
      isOpen ? customParameters(m_session.marks().printer(), option) : QList<CustomParameter>();
  if (isCustom) m_custom->show(parameters, customValues(parameters, marked));
  m_custom->setVisible(!parameters.isEmpty());
  // Fields that were made just now stand last in the window's order.
  QWidget *last = m_view;
  for (QWidget *field : m_custom->fields()) setTabOrder(std::exchange(last, field), field);
  setTabOrder(last, m_setBack);
  if (isVisible()) assignMnemonics(this);
}

void OptionsPage::askForCustomValues(const QString &option) {
  if (!isCustomChoice(m_session.marks().marked(option))) {
    m_customOption = option;
    m_custom->show(customParameters(m_session.marks().printer(), option), {});
    updateCustomValues();
    m_custom->offer();
  }
  m_custom->startTyping();
}

void OptionsPage::setBack() {
  const OptionEntry *entry = m_model->entryAt(m_view->currentIndex());
  if (entry != nullptr) m_session.pick(entry->keyword, entry->standard);
}

void OptionsPage::setAllBack() {
  const ActionScope action(m_session);
  const QList<OptionChoice> changed = m_model->changed();
  for (const OptionChoice &option : changed) {
    m_session.pick(option.option, option.choice);
  }
}

}  // namespace orvek
