// SPDX-License-Identifier: Apache-2.0
// Reads the document in the background, lays the job out whenever the session changes, and says in
// words what is seen.

#include "host/preview/JobPreview.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "host/jobs/Document.h"
#include "host/ppd/Wording.h"
#include "host/preview/SheetsView.h"
#include "host/preview/SpokenSide.h"
#include "platform/plugin/FinishingKeywords.h"
#include "platform/ui/PlainText.h"
#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

constexpr int gap = 4;
constexpr int usualWidth = 316;
constexpr int usualHeight = 272;
constexpr int samplePages = 8;
constexpr int fewPages = 2000;  // laid out at once; more of them in the background

// Four small sheets, in the colour of the text beside it.
QIcon severalIcon(const QPalette &palette) {
  constexpr int side = 32;
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 2));
  for (const QPoint corner : {QPoint(6, 4), QPoint(18, 4), QPoint(6, 18), QPoint(18, 18)}) {
    painter.drawRect(QRect(corner, QSize(8, 10)));
  }
  return QIcon(picture);
}

QToolButton *arrowButton(Qt::ArrowType arrow, const QString &name, QWidget *parent) {
  auto *button = new QToolButton(parent);
  button->setArrowType(arrow);
  button->setAutoRaise(true);
  button->setAutoRepeat(true);
  button->setToolTip(plainToolTip(name));
  button->setAccessibleName(name);
  return button;
}

DocumentPages sample(const imposition::Size &paper) {
  DocumentPages document;
  const DocumentPage page{QSizeF(paper.width, paper.height), {0, 0, 1, 1}};
  document.pages = QList<DocumentPage>(samplePages, page);
  return document;
}

QString choiceInWords(const PrintSession &session, const char *option) {
  const QString name = QString::fromLatin1(option);
  const QString marked = session.marks().marked(name);
  return marked.isNull() ? QString() : choiceText(session.marks().printer(), {name, marked});
}

// Where the printer chooses for itself there is nothing to say.
QString binInWords(const PrintSession &session) {
  const QString marked = session.marks().marked(QStringLiteral("OutputBin"));
  if (marked.startsWith(QLatin1String("Auto"), Qt::CaseInsensitive)) return {};
  return choiceInWords(session, "OutputBin");
}

}  // namespace

JobPreview::JobPreview(PrintSession &session, const QString &document, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_path(document),
      m_pictures(new PagePictures(this)),
      m_view(new SheetsView(*m_pictures, this)),
      m_caption(new PlainLabel(this)) {
  m_pool.setMaxThreadCount(2);
  m_isRead = m_path.isEmpty();
  build();
}

JobPreview::~JobPreview() {
  if (m_cancelled) *m_cancelled = true;
  m_pool.waitForDone();
  // The view goes before the pictures that it borrows.
  delete m_view;
}

void JobPreview::build() {
  m_view->setObjectName(QStringLiteral("previewSheets"));
  m_view->setAccessibleName(tr("Preview"));
  m_caption->setObjectName(QStringLiteral("previewCaption"));
  m_caption->setWordWrap(true);
  m_caption->setAlignment(Qt::AlignHCenter);
  // Its first words come after the first paint, when nothing is to move.
  m_caption->setMinimumHeight(m_caption->fontMetrics().lineSpacing());
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(gap);
  column->addWidget(m_view, 1);
  column->addWidget(buildBar());
  column->addWidget(m_caption);
  connect(m_view, &SheetsView::currentChanged, this, &JobPreview::showSide);
  connect(m_view, &SheetsView::showsSeveralChanged, m_several, &QToolButton::setChecked);
}

QWidget *JobPreview::buildBar() {
  auto *bar = new QWidget(this);
  m_back = arrowButton(Qt::LeftArrow, tr("Previous side"), bar);
  m_forward = arrowButton(Qt::RightArrow, tr("Next side"), bar);
  m_back->setObjectName(QStringLiteral("previewBack"));
  m_forward->setObjectName(QStringLiteral("previewForward"));
  m_place = new PlainLabel(bar);
  m_place->setObjectName(QStringLiteral("previewPlace"));
  m_place->setAlignment(Qt::AlignCenter);
  m_place->setWordWrap(true);
  m_place->setText(QStringLiteral(" "));
  m_several = severalButton(bar);
  auto *row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  row->addWidget(m_back);
  row->addWidget(m_place, 1);
  row->addWidget(m_forward);
  row->addWidget(m_several);
  connect(m_back, &QToolButton::clicked, this,
          [this] { m_view->setCurrent(m_view->current() - 1); });
  connect(m_forward, &QToolButton::clicked, this,
          [this] { m_view->setCurrent(m_view->current() + 1); });
  return bar;
}

QToolButton *JobPreview::severalButton(QWidget *bar) {
  auto *several = new QToolButton(bar);
  several->setObjectName(QStringLiteral("previewSeveral"));
  several->setIcon(severalIcon(palette()));
  several->setCheckable(true);
  several->setAutoRaise(true);
  several->setToolTip(tr("Several sheets at once (Ctrl and wheel: zoom)"));
  several->setAccessibleName(tr("Several sheets at once"));
  connect(several, &QToolButton::toggled, m_view, &SheetsView::setShowsSeveral);
  return several;
}

const std::vector<imposition::PrintedSide> &JobPreview::sides() const {
  return m_view->sides();
}

QSize JobPreview::sizeHint() const {
  return {scaledToText(usualWidth), scaledToText(usualHeight)};
}

bool JobPreview::isComplete() const {
  return m_hasBegun && m_isRead && m_isLaidOut && m_pictures->isIdle();
}

// Only now: a timer that is set when the preview is shown fires before the window is painted, which
// is not to wait for what comes then.
void JobPreview::paintEvent(QPaintEvent *event) {
  QWidget::paintEvent(event);
  if (!std::exchange(m_isPainted, true)) QTimer::singleShot(0, this, &JobPreview::begin);
}

void JobPreview::begin() {
  m_hasBegun = true;
  const LaidOutJob job = laidOutJobOf(m_session);
  m_job = job.sheets;
  m_copies = job.copies;
  m_with = job.with;
  m_document = sample(m_job.filters.paper);
  m_pictures->setInGray(m_job.inGray);
  connect(&m_session, &PrintSession::changed, this, &JobPreview::followSession);
  layOut();
  if (!m_isRead && !comesOnce(m_path)) read();
}

void JobPreview::followSession() {
  const LaidOutJob job = laidOutJobOf(m_session);
  // A PDF's own pages are what they are; others are made anew.
  const bool isMade = m_document.made != nullptr || !m_isRead;
  const bool readsAnew = job.with != m_with && m_reading > 0 && isMade;
  m_with = job.with;
  m_copies = job.copies;
  showCaption();
  if (readsAnew) read();
  if (job.sheets == m_job) return;
  m_job = job.sheets;
  m_pictures->setInGray(m_job.inGray);
  if (m_isSample) m_document = sample(m_job.filters.paper);
  layOut();
}

// The document before stays on show until the new one is there.
void JobPreview::read() {
  if (m_cancelled) *m_cancelled = true;
  m_cancelled = std::make_shared<std::atomic<bool>>(false);
  m_isRead = false;
  m_pool.start(
      [this, generation = ++m_reading, path = m_path, with = m_with, cancelled = m_cancelled] {
        Result<DocumentPages> document = readDocumentPages(path, with, *cancelled);
        QMetaObject::invokeMethod(
            this, [this, generation, document] { takeDocument(generation, document); });
      });
}

void JobPreview::takeDocument(int generation, const Result<DocumentPages> &document) {
  if (generation != m_reading) return;
  m_isRead = true;
  m_isSample = !document;
  m_document = document ? document.value() : sample(m_job.filters.paper);
  m_pictures->setDocument(m_document);
  layOut();
}

void JobPreview::layOut() {
  m_isLaidOut = false;
  const int generation = ++m_layingOut;
  if (m_document.pages.size() <= fewPages) {
    takeSides(generation, sidesOf(m_document, m_job));
    return;
  }
  m_pool.start([this, generation, document = m_document, job = m_job] {
    auto sides = std::make_shared<std::vector<imposition::PrintedSide>>(sidesOf(document, job));
    QMetaObject::invokeMethod(
        this, [this, generation, sides] { takeSides(generation, std::move(*sides)); });
  });
}

void JobPreview::takeSides(int generation, std::vector<imposition::PrintedSide> sides) {
  if (generation != m_layingOut) return;
  m_isLaidOut = true;
  auto before =
      std::make_shared<std::vector<imposition::PrintedSide>>(m_view->setSides(std::move(sides)));
  if (before->size() > fewPages) m_pool.start([before = std::move(before)] {});
  showSide();
  showCaption();
}

bool JobPreview::isTwoSided() const {
  return m_job.twoSided || m_job.booklet.enabled;
}

void JobPreview::showSide() {
  const auto &all = sides();
  const int current = m_view->current();
  m_back->setEnabled(current > 0);
  m_forward->setEnabled(current + 1 < static_cast<int>(all.size()));
  QString title;
  QString spoken = tr("No page of the document is printed.");
  if (!all.empty()) {
    const imposition::PrintedSide &side = all[static_cast<std::size_t>(current)];
    const QString keyword = QString::fromStdString(m_job.finishing.fold);
    const char *option =
        m_session.marks().marked(QStringLiteral("FoldType")).isNull() ? foldingKeyword : "FoldType";
    const QString fold =
        keyword.isEmpty() ? keyword : foldInWords(keyword, choiceInWords(m_session, option));
    title = sideTitle(side, imposition::sheetCount(all), isTwoSided());
    spoken = spokenSide(side, fold);
  }
  m_place->setText(title);
  if (m_view->accessibleDescription() == spoken) return;
  m_view->setAccessibleDescription(spoken);
  QAccessibleEvent changed(m_view, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&changed);
}

void JobPreview::setHasDocument(bool has) {
  m_hasDocument = has;
  if (m_hasBegun) showCaption();
}

QString JobPreview::sheetsInWords() const {
  const int sheets = imposition::sheetCount(sides());
  if (m_copies <= 1) return sheets == 1 ? tr("1 sheet") : tr("%n sheets", nullptr, sheets);
  return sheets == 1 ? tr("%1 × 1 sheet").arg(m_copies)
                     : tr("%1 × %n sheets", nullptr, sheets).arg(m_copies);
}

// Of what does not exist nobody counts the sheets.
QString JobPreview::caption() const {
  if (m_isSample && !m_isRead) return tr("Reading the document…");
  if (m_hasDocument && sides().empty()) return tr("No page of the document is printed.");
  QStringList parts;
  if (!m_hasDocument) {
    parts << tr("There is no document yet: a sample");
  } else {
    if (m_isSample) parts << tr("The document's pages are not known: a sample");
    parts << sheetsInWords();
  }
  // Of a booklet that goes without saying.
  if (m_job.twoSided && !m_job.booklet.enabled) parts << tr("Two-sided");
  if (const QString paper = choiceInWords(m_session, "PageSize"); !paper.isEmpty()) parts << paper;
  if (const QString bin = binInWords(m_session); !bin.isEmpty()) parts << bin;
  return parts.join(QStringLiteral(" · "));
}

void JobPreview::showCaption() {
  m_caption->setText(caption());
}

}  // namespace orvek
