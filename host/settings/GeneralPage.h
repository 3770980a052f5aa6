// SPDX-License-Identifier: Apache-2.0
// The page of settings that everyone expects. Shows and changes a session; no rules of its own.
#pragma once

#include <QWidget>
#include <memory>

#include "host/session/PrintSession.h"

namespace orvek {

/// Copies and collation, page ranges, order; paper size, source and type; orientation, two-sided,
/// pages per sheet; colour, quality. A row that the printer has nothing for is hidden.
class GeneralPage final : public QWidget {
  Q_OBJECT

 public:
  /// Borrows the session, which must outlive the page.
  explicit GeneralPage(PrintSession &session, QWidget *parent = nullptr);
  ~GeneralPage() override;

 private:
  struct Rows;
  std::unique_ptr<Rows> m_rows;
};

}  // namespace orvek
