// SPDX-License-Identifier: Apache-2.0
// All panels of a session as one: made by their plug-ins, driven together, let go together. Nobody
// outside walks over panels.
//
//   1. Their life            open, reopen, close
//   2. Calls to all of them  loadViews, restore, save, willShow, restoreClaiming, makeRoom
//   3. What they show        first, places, findControl, claimedOptions, summary
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "host/panels/HostedPanel.h"
#include "host/panels/PluginCallback.h"
#include "host/panels/PluginLoader.h"

namespace orvek {

/// Title and value of each line of a summary.
using SummaryText = QList<QPair<QString, QString>>;

/// Plug-ins in the order in which they give panels.
using PluginList = std::vector<std::shared_ptr<LoadedPlugin>>;

/// What a window needs to show a panel: its name and where its view stands, which is lent. Plain
/// data.
struct PanelPlace {
  QString name;
  PanelContainer *container = nullptr;
  /// Whether there is something in the view: a panel has nothing to show of a printer that lacks
  /// all that the panel is about.
  bool hasContent = false;
};

/// A control that a panel shows to scripts, with the root view of that panel; both are lent, and
/// null where no panel has the control. Plain data.
struct PanelControl {
  QWidget *control = nullptr;
  QWidget *panelView = nullptr;
};

/// Owns panels, their callback objects and a share of their plug-ins. Belongs to the interface's
/// thread. A panel that fails is a panel that shows nothing: no call here fails.
class PanelSet {
 public:
  /// Borrows the listener, and what `loan` lends: all of it must outlive the set or its close().
  PanelSet(PanelListener &listener, PanelLoan loan, bool panelsMayResize);
  ~PanelSet();
  PanelSet(const PanelSet &) = delete;
  PanelSet &operator=(const PanelSet &) = delete;

  /// Has the plug-ins make their panels, loads the panels' views, has each restore and tells it
  /// that it is about to show. Panels show what a PPD has: without one in the loan there are none.
  void open(PluginList plugins);

  /// Lets all panels go and makes them again.
  void reopen();

  /// Lets all panels go. Those that others still hold have nobody to ask or tell from then on.
  void close();

  /// The calls of the same name, to each panel in turn. A loaded view gets its place.
  void loadViews();
  void restore();
  void save();
  void willShow();

  /// Has those panels restore that take charge of one of these options.
  void restoreClaiming(const QStringList &options);

  /// Makes room for views that have another size now.
  void makeRoom();

  const PluginList &plugins() const { return m_plugins; }
  bool panelsMayResize() const { return m_panelsMayResize; }

  /// The first panel; null where there is none.
  const HostedPanel *first() const;

  /// Those panels that have a view, in order.
  QList<PanelPlace> places() const;

  /// The first panel's that has one of this name.
  PanelControl findControl(const QString &name) const;

  /// Main keywords of the PPD options that panels take charge of.
  QStringList claimedOptions() const;

  /// Title and value of each line of each panel's summary.
  SummaryText summary() const;

 private:
  void make();

  PanelListener &m_listener;
  PanelLoan m_loan;
  bool m_panelsMayResize;
  /// They outlive their panels.
  PluginList m_plugins;
  std::vector<std::shared_ptr<PluginCallback>> m_callbacks;
  std::vector<std::unique_ptr<HostedPanel>> m_panels;
};

}  // namespace orvek
