// SPDX-License-Identifier: Apache-2.0
// Pictures of a document's pages, rendered out of process and in the background, kept within a
// bound.
#pragma once

#include <QCache>
#include <QImage>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QThreadPool>
#include <atomic>
#include <memory>

#include "host/preview/DocumentPages.h"

namespace orvek {

/// Renders one page, `pixels` large. Blocks, within bounds. A page that can't be rendered is a
/// failure.
Result<QImage> renderPage(const DocumentPages &document, int page, QSize pixels,
                          const std::atomic<bool> &cancelled);

/// A page that is to be seen, and how large it stands there. Plain data.
struct PageWish {
  int page = 1;
  QSize pixels;

  bool operator==(const PageWish &) const = default;
};

/// All of it is the interface's thread's business; rendering happens in processes that other
/// threads wait for. Owns the pictures, keeps a copy of the document's description, and belongs to
/// its parent. A page that can't be rendered has no picture; nothing else fails.
class PagePictures final : public QObject {
  Q_OBJECT

 public:
  explicit PagePictures(QObject *parent = nullptr);
  ~PagePictures() override;

  /// Forgets everything about the document before.
  void setDocument(const DocumentPages &document);

  /// Makes the pictures gray, as all of them are printed; those that are there, too.
  void setInGray(bool gray);

  /// The newest picture of a page, whatever its size; null while there is none.
  QImage picture(int page) const;

  /// What is to be seen, the most urgent first: takes the place of earlier wishes. Rendering that
  /// nobody wishes for any more is broken off.
  void want(const QList<PageWish> &wishes);

  /// Whether every wish has come true or can't.
  bool isIdle() const { return m_wishes.isEmpty() && m_running.isEmpty(); }

  /// How much the pictures take, in KiB.
  qsizetype kept() const { return m_pictures.totalCost(); }

 Q_SIGNALS:
  void arrived(int page);

 private:
  using Cancelled = std::shared_ptr<std::atomic<bool>>;

  bool isNeeded(const PageWish &wish) const;
  void startNext();
  void start(const PageWish &wish);
  void take(const PageWish &wish, const Result<QImage> &picture);
  void cancelAll();
  void forget();

  DocumentPages m_document;
  bool m_isGray = false;
  int m_generation = 0;
  QCache<int, QImage> m_pictures;
  /// What was asked for when a page's picture was made.
  QMap<int, QSize> m_sizes;
  QSet<int> m_hopeless;
  QList<PageWish> m_wishes;
  /// By page.
  QMap<int, Cancelled> m_running;
  /// Goes first: it works for all of the above.
  QThreadPool m_pool;
};

}  // namespace orvek
