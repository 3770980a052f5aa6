// SPDX-License-Identifier: Apache-2.0
// One form, its rows in three groups.

#include "host/settings/GeneralPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <array>

#include "host/ppd/CustomChoice.h"
#include "host/session/Availability.h"
#include "host/session/OrientationText.h"
#include "host/settings/ChoiceBox.h"
#include "host/settings/CustomSizeRow.h"
#include "host/settings/JobChange.h"
#include "host/settings/LabelText.h"
#include "host/settings/Mnemonics.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

constexpr int margin = 14;
constexpr int rowSpacing = 6;
constexpr int labelGap = 10;
constexpr int groupGap = 6;
constexpr int widestForm = 560;
constexpr int paperSizePlace = static_cast<int>(CommonSetting::PaperSize);
constexpr int commonSettings = static_cast<int>(CommonSetting::Quality) + 1;
constexpr int firstFurther = commonSettings + jobChoices;
constexpr std::array<int, 6> layouts{1, 2, 4, 6, 9, 16};

}  // namespace

GeneralPage::GeneralPage(PrintSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_state(generalState(session)),
      m_availability(new Availability(session, this)),
      m_form(new QFormLayout) {
  m_form->setContentsMargins(0, 0, 0, 0);
  m_form->setVerticalSpacing(rowSpacing);
  m_form->setHorizontalSpacing(labelGap);
  m_form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  addPaperRows();
  addGap();
  addLayoutRows();
  addGap();
  addQualityRows();
  addGap();
  addServerRows();
  auto *body = new QWidget(this);
  body->setMaximumWidth(scaledToText(widestForm));
  body->setLayout(m_form);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->addWidget(body);
  column->addStretch(1);
  connect(&session, &PrintSession::changed, this, &GeneralPage::followSession);
  showState();
}

void GeneralPage::addPaperRows() {
  addChoiceRow(CommonSetting::PaperSize, QStringLiteral("paperSize"), tr("Paper size"));
  m_customSize = new CustomSizeRow(this);
  m_form->addRow(QString(), m_customSize);
  connect(m_customSize, &CustomSizeRow::choicePicked, this,
          [this](const QString &choice) { pickChoice(paperSizePlace, choice); });
  addChoiceRow(CommonSetting::PaperSource, QStringLiteral("paperSource"), tr("Paper source"));
  addChoiceRow(CommonSetting::PaperType, QStringLiteral("paperType"), tr("Paper type"));
}

void GeneralPage::addLayoutRows() {
  m_orientation = addListRow(QStringLiteral("orientation"), tr("Orientation"));
  for (const Orientation orientation : orientations) {
    m_orientation->addItem(orientationText(orientation), static_cast<int>(orientation));
  }
  addJobRow(JobChoice::Scaling, QStringLiteral("scaling"));
  m_pagesPerSheet = addListRow(QStringLiteral("pagesPerSheet"), tr("Pages per sheet"));
  for (const int pages : layouts) m_pagesPerSheet->addItem(QString::number(pages), pages);
  addJobRow(JobChoice::OrderOnSheet, QStringLiteral("orderOnSheet"));
  addJobRow(JobChoice::PageSet, QStringLiteral("pageSet"));
  m_reverse = new QCheckBox(tr("Last page first"), this);
  m_reverse->setObjectName(QStringLiteral("reverse"));
  m_form->addRow(QString(), m_reverse);
  connect(m_orientation, &QComboBox::activated, this, [this](int row) {
    changeJob(m_session,
              [=](JobSettings *job) { job->orientation = orientations.at(std::size_t(row)); });
  });
  connect(m_pagesPerSheet, &QComboBox::activated, this, [this](int row) {
    const int pages = m_pagesPerSheet->itemData(row).toInt();
    m_session.job().pickPagesPerSheet(pages > 1 ? pages : 0);
  });
  connect(m_reverse, &QCheckBox::clicked, this, [this](bool reverse) {
    changeJob(m_session, [=](JobSettings *job) { job->reverse = reverse; });
  });
}

void GeneralPage::addQualityRows() {
  addChoiceRow(CommonSetting::Color, QStringLiteral("color"), tr("Color"));
  addChoiceRow(CommonSetting::Quality, QStringLiteral("quality"), tr("Quality"));
  addFurtherRows();
}

void GeneralPage::addServerRows() {
  addJobRow(JobChoice::Banner, QStringLiteral("banner"));
  addJobRow(JobChoice::Start, QStringLiteral("startPrinting"));
  addJobRow(JobChoice::Priority, QStringLiteral("priority"));
}

// Named wherever it is shown.
void GeneralPage::addJobRow(JobChoice choice, const QString &name) {
  addChoiceRow(commonSettings + static_cast<int>(choice), name, QString());
}

void GeneralPage::addFurtherRows() {
  const QList<std::optional<Setting>> &settings = m_state.settings;
  for (int place = firstFurther; place < settings.size(); ++place) {
    addChoiceRow(place, settings[place]->key, settings[place]->key);
  }
}

void GeneralPage::addGap() {
  m_form->addItem(new QSpacerItem(0, groupGap, QSizePolicy::Minimum, QSizePolicy::Fixed));
}

QLabel *GeneralPage::addRow(const QString &text, QWidget *field) {
  auto *label = new PlainLabel(labelText(text), this);
  label->setBuddy(field);
  m_form->addRow(label, field);
  return label;
}

// The PPD's own name is the one that notices and the printer's papers use.
void GeneralPage::addChoiceRow(int setting, const QString &name, const QString &usual) {
  const std::optional<Setting> found = m_state.settings[setting];
  const QString title = found && !found->title.isNull() ? found->title : usual;
  auto *box = new ChoiceBox(m_availability, this);
  box->setObjectName(name);
  box->setAccessibleName(title);
  m_choiceRows.append({setting, addRow(title, box), box});
  connect(box, &ChoiceBox::choicePicked, this,
          [this, setting](const QString &choice) { pickChoice(setting, choice); });
}

QComboBox *GeneralPage::addListRow(const QString &name, const QString &title) {
  auto *box = new QComboBox(this);
  box->setObjectName(name);
  box->setAccessibleName(title);
  box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  addRow(title, box);
  return box;
}

void GeneralPage::showEvent(QShowEvent *event) {
  QWidget::showEvent(event);
  assignMnemonics(this);
}

void GeneralPage::followSession() {
  m_state = generalState(m_session);
  showState();
}

void GeneralPage::showState() {
  m_reverse->setChecked(m_state.job.reverse);
  m_orientation->setCurrentIndex(static_cast<int>(m_state.job.orientation));
  m_pagesPerSheet->setCurrentIndex(m_pagesPerSheet->findData(m_state.pagesPerSheet));
  for (const ChoiceRow &row : m_choiceRows) {
    showChoice(row, m_state.settings[row.setting]);
  }
  showCustomPaper(m_state.customPaper);
  // One page has no order.
  findChild<ChoiceBox *>(QStringLiteral("orderOnSheet"))->setEnabled(m_state.pagesPerSheet > 1);
}

void GeneralPage::showChoice(const ChoiceRow &row, const std::optional<Setting> &setting) {
  m_form->setRowVisible(row.box, setting.has_value());
  if (!setting) return;
  row.box->setChoices(setting->key, setting->choices);
  const bool isPaper = row.setting == paperSizePlace;
  row.box->setChoice(isPaper ? listedChoice(setting->current) : setting->current);
}

void GeneralPage::showCustomPaper(const std::optional<CustomPaper> &paper) {
  m_form->setRowVisible(m_customSize, paper.has_value());
  if (paper) m_customSize->setSize(paper->size, paper->limits);
}

void GeneralPage::pickChoice(int place, const QString &choice) {
  const std::optional<Setting> setting = m_state.settings[place];
  if (!setting) return;
  if (place >= commonSettings && place < firstFurther) {
    pickJobChoice(m_session, static_cast<JobChoice>(place - commonSettings), choice);
  } else if (place == paperSizePlace && choice == CustomChoice::keyword) {
    pickCustomPaper(*setting);
  } else {
    pickSetting(m_session, *setting, choice);
  }
}

// A custom size begins as large as the paper that it replaces.
void GeneralPage::pickCustomPaper(const Setting &setting) {
  const PrinterDescription &printer = m_session.marks().printer();
  const std::optional<CustomPaperLimits> limits = customPaperLimits(printer);
  if (limits) m_customSize->setSize(paperSize(printer, setting.current), *limits);
  pickSetting(m_session, setting, limits ? m_customSize->choice() : QString(CustomChoice::keyword));
}

}  // namespace orvek
