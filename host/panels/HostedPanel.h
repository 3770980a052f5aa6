// SPDX-License-Identifier: Apache-2.0
// One panel as the session holds it: the panel, its place, and what it said of itself.
#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <memory>

#include "platform/plugin/PDEInspection.h"
#include "platform/plugin/PDEPanel.h"

class QWidget;

namespace orvek {

class PanelContainer;

/// Owns the panel (the last to do so) and the place of its view. Belongs to the interface's thread.
/// A view that could not be loaded is null; nothing else fails.
class HostedPanel {
 public:
  explicit HostedPanel(std::shared_ptr<PDEPanel> panel);
  ~HostedPanel();
  HostedPanel(const HostedPanel &) = delete;
  HostedPanel &operator=(const HostedPanel &) = delete;

  /// Asks for the view, the name, the kind and the claimed options, in this order.
  void open();

  /// The same, then has the panel restore itself and tells it that it is about to show.
  void start();

  /// Asks for the view (again) and gives it its place.
  void loadView();

  PDEPanel &panel() const { return *m_panel; }

  /// The root view; null where it could not be loaded.
  QWidget *view() const;

  /// Whether the view has anything in it that isn't hidden and is more than an empty frame.
  bool hasContent() const;

  /// Where the view stands; lent to whoever shows it, and taken back when the panel goes.
  PanelContainer *container() const;

  const QString &name() const { return m_name; }
  const QString &kind() const { return m_kind; }
  const QStringList &claimedOptions() const { return m_claimedOptions; }

  /// True where the panel takes charge of one of these options.
  bool claimsAny(const QStringList &options) const;

  /// What the panel shows of itself to scripts; null where it shows nothing.
  const PDEInspection *inspection() const;

 private:
  std::shared_ptr<PDEPanel> m_panel;
  QPointer<QWidget> m_view;
  QPointer<PanelContainer> m_container;
  QString m_name;
  QString m_kind;
  QStringList m_claimedOptions;
};

}  // namespace orvek
