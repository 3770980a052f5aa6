// SPDX-License-Identifier: Apache-2.0
// One panel of a print dialog as its host drives it.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QWidget;

/// Where a panel may say what went wrong in a restore or save.
struct PDEError {
  QString text;
};

/// A panel. Hosts call, in this order: panelView, panelName, panelKind, supportedPPDOptionKeys;
/// then restoreValuesAndReturnError and willShow in any order and number, between the user's
/// actions and summaryInfo; then saveValuesAndReturnError; then they let go of it. One thread, the
/// interface's. The host is the panel's only owner; the panel owns its view.
class PDEPanel {
 public:
  virtual ~PDEPanel();

  /// The root view, owned by the panel. Null where it could not be loaded.
  virtual QWidget *panelView() = 0;

  /// The localized name, as a tab or a menu shows it. Null: none.
  virtual QString panelName() = 0;

  /// A reverse-DNS identifier unique to this kind of panel.
  virtual QString panelKind() = 0;

  /// Main keywords of the PPD options that this panel takes charge of; a host shows them nowhere
  /// else.
  virtual QStringList supportedPPDOptionKeys() = 0;

  virtual void willShow() = 0;
  virtual bool shouldHide() = 0;
  virtual bool shouldPrint() = 0;
  virtual bool shouldShowHelp() = 0;

  /// Take the values from the ticket and the PPD's marks; write the values back. False and a text
  /// in `error` (may be null) on failure.
  virtual bool restoreValuesAndReturnError(PDEError *error) = 0;
  virtual bool saveValuesAndReturnError(PDEError *error) = 0;

  /// Title to text, one entry per setting.
  virtual QMap<QString, QString> summaryInfo() = 0;
};
