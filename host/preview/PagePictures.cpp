// SPDX-License-Identifier: Apache-2.0
// Two pages at a time, each in a process of its own: one that is broken takes none with it.

#include "host/preview/PagePictures.h"

#include <algorithm>
#include <cmath>

#include "host/jobs/BoundedTool.h"

namespace orvek {
namespace {

using namespace std::chrono_literals;

constexpr int cacheKibibytes = 64 << 10;
constexpr int processes = 2;
constexpr double mostPixels = 6e6;
constexpr int leastPixels = 8;
constexpr int bytesPerPixel = 3;
constexpr qint64 headerBytes = 64;
constexpr qint64 memoryBytes = 1LL << 30;
constexpr std::chrono::milliseconds patience = 10s;

// So large that the part which is printed has the size that was asked for.
QSize wholePage(const DocumentPage &page, QSize pixels) {
  const double across = std::clamp(page.part.width(), 0.05, 1.0);
  const double down = std::clamp(page.part.height(), 0.05, 1.0);
  return {qRound(pixels.width() / across), qRound(pixels.height() / down)};
}

QSize bounded(QSize pixels) {
  const double area = static_cast<double>(pixels.width()) * pixels.height();
  const double scale = area > mostPixels ? std::sqrt(mostPixels / area) : 1;
  return {std::max(leastPixels, static_cast<int>(pixels.width() * scale)),
          std::max(leastPixels, static_cast<int>(pixels.height() * scale))};
}

QImage partOf(const QImage &whole, const QRectF &part) {
  if (part == QRectF(0, 0, 1, 1)) return whole;
  return whole.copy(qRound(part.x() * whole.width()), qRound(part.y() * whole.height()),
                    qRound(part.width() * whole.width()), qRound(part.height() * whole.height()));
}

// The renderer scales a page before it turns it.
QSize beforeTurning(const DocumentPage &page, QSize pixels) {
  return page.turn % 180 == 0 ? pixels : pixels.transposed();
}

QStringList rendererArguments(const QString &pdf, int page, QSize pixels) {
  const QString number = QString::number(page);
  return {QStringLiteral("-cropbox"),
          QStringLiteral("-f"),
          number,
          QStringLiteral("-l"),
          number,
          QStringLiteral("-scale-to-x"),
          QString::number(pixels.width()),
          QStringLiteral("-scale-to-y"),
          QString::number(pixels.height()),
          pdf};
}

}  // namespace

Result<QImage> renderPage(const DocumentPages &document, int page, QSize pixels,
                          const std::atomic<bool> &cancelled) {
  const Failure failure{FailureKind::Io, document.pdf, Phrase("a page can't be shown")};
  if (document.pdf.isEmpty() || page < 1 || page > document.pages.size()) return failure;
  const DocumentPage &wanted = document.pages[page - 1];
  const QSize size = bounded(wholePage(wanted, pixels));
  ToolLimits limits{patience, 0, memoryBytes};
  limits.outputBytes = qint64{size.width() + 1} * (size.height() + 1) * bytesPerPixel + headerBytes;
  const Result<QByteArray> picture = runTool(
      QStringLiteral("pdftoppm"),
      rendererArguments(document.pdf, page, beforeTurning(wanted, size)), limits, cancelled);
  if (!picture) return picture.failure();
  const QImage image = QImage::fromData(picture.value(), "ppm");
  if (image.isNull()) return failure;
  return partOf(image, wanted.part).convertToFormat(QImage::Format_RGB32);
}

PagePictures::PagePictures(QObject *parent) : QObject(parent), m_pictures(cacheKibibytes) {
  m_pool.setMaxThreadCount(processes);
}

PagePictures::~PagePictures() {
  cancelAll();
  m_pool.waitForDone();
}

void PagePictures::cancelAll() {
  for (const Cancelled &cancelled : std::as_const(m_running)) *cancelled = true;
}

void PagePictures::setDocument(const DocumentPages &document) {
  m_document = document;
  forget();
}

void PagePictures::setInGray(bool gray) {
  if (gray == m_isGray) return;
  m_isGray = gray;
  forget();
}

void PagePictures::forget() {
  cancelAll();
  ++m_generation;
  m_pictures.clear();
  m_sizes.clear();
  m_hopeless.clear();
  m_wishes.clear();
  m_running.clear();
}

QImage PagePictures::picture(int page) const {
  const QImage *kept = m_pictures.object(page);
  return kept == nullptr ? QImage() : *kept;
}

bool PagePictures::isNeeded(const PageWish &wish) const {
  const bool isThere = !m_document.pdf.isEmpty() && !m_hopeless.contains(wish.page);
  if (!isThere || wish.pixels.isEmpty()) return false;
  return !m_pictures.contains(wish.page) || m_sizes.value(wish.page) != wish.pixels;
}

void PagePictures::want(const QList<PageWish> &wishes) {
  m_wishes.clear();
  QSet<int> pages;
  for (const PageWish &wish : wishes) {
    pages.insert(wish.page);
    if (!isNeeded(wish)) continue;
    const Cancelled running = m_running.value(wish.page);
    if (!running || *running) m_wishes << wish;
  }
  for (auto run = m_running.begin(); run != m_running.end(); ++run) {
    if (!pages.contains(run.key())) *run.value() = true;
  }
  startNext();
}

void PagePictures::startNext() {
  // A page whose last rendering is being broken off waits for the end of that.
  for (qsizetype i = 0; i < m_wishes.size() && m_running.size() < processes;) {
    if (m_running.contains(m_wishes[i].page)) {
      ++i;
      continue;
    }
    const PageWish wish = m_wishes.takeAt(i);
    if (isNeeded(wish)) start(wish);
  }
}

void PagePictures::start(const PageWish &wish) {
  const auto cancelled = std::make_shared<std::atomic<bool>>(false);
  m_running.insert(wish.page, cancelled);
  m_pool.start(
      [this, cancelled, wish, document = m_document, generation = m_generation, isGray = m_isGray] {
        Result<QImage> picture = renderPage(document, wish.page, wish.pixels, *cancelled);
        if (isGray && picture) {
          picture = picture.value().convertToFormat(QImage::Format_Grayscale8);
        }
        QMetaObject::invokeMethod(this, [this, generation, wish, cancelled, picture] {
          if (generation != m_generation) return;
          m_running.remove(wish.page);
          if (!*cancelled) take(wish, picture);
          startNext();
        });
      });
}

void PagePictures::take(const PageWish &wish, const Result<QImage> &picture) {
  if (!picture) {
    m_hopeless.insert(wish.page);
  } else {
    const auto cost = std::max<qsizetype>(1, picture.value().sizeInBytes() >> 10);
    m_sizes.insert(wish.page, wish.pixels);
    m_pictures.insert(wish.page, new QImage(picture.value()), cost);
  }
  Q_EMIT arrived(wish.page);
}

}  // namespace orvek
