// SPDX-License-Identifier: Apache-2.0
// The summary beside the pages: a list of settings in words. Shows lines, knows no session.
#pragma once

#include <QTreeWidget>

#include "host/dialog/SummaryLines.h"

namespace orvek {

/// Two columns, title and value; changed settings stand first and are bold. Long texts wrap.
/// Belongs to its parent, owns its child controls, and lives on the interface's thread. Nothing
/// fails.
class SummaryView final : public QTreeWidget {
  Q_OBJECT

 public:
  explicit SummaryView(QWidget *parent = nullptr);

  void show(const QList<SummaryLine> &lines);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  QList<SummaryLine> m_lines;
};

}  // namespace orvek
