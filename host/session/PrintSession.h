// SPDX-License-Identifier: Apache-2.0
// One printing session: a printer's marks, the job's ticket, the plug-ins' panels, and the rules
// between them. Window, headless run and command line are views over it and have no rules of their
// own.
//
//   1. Setting up            begin, addPlugin, openPanels, reopenPanels
//   2. What the user does    perform, pick, setPagesPerSheet, setJobSettings, undo
//   3. What can be seen      marks, ticket, panels, conflicts, summary, jobSettings, jobOptions
//   4. What has been heard   announced, resizeCount, log, notices
#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "host/panels/DefaultSummary.h"
#include "host/panels/HostedPanel.h"
#include "host/panels/PluginCallback.h"
#include "host/panels/PluginLoader.h"
#include "host/ppd/PrinterDescription.h"
#include "host/printers/SettingOffer.h"
#include "host/session/Picks.h"
#include "host/ticket/JobSettings.h"
#include "host/ticket/TicketFile.h"
#include "platform/printing/PrintSession.h"

namespace orvek {

/// What a session begins with.
struct SessionSetup {
  std::shared_ptr<PrinterDescription> printer;  ///< null: a printer without PPD
  QString destination;  ///< the queue, "NAME[/INSTANCE]"; null: none was named
  TicketValues ticket;
  QList<OptionChoice>
      queueOptions;            ///< the queue's and the user's; what the PPD lacks is passed over
  QList<OptionChoice> marks;   ///< equipment, an earlier job: marked last, the ticket left alone
  QList<SettingOffer> offers;  ///< of a printer without PPD
  bool panelsMayResize = true;
};

class PrintSession final : public QObject, private PanelListener {
  Q_OBJECT

 public:
  /// Marks the PPD: its defaults, the queue's options, the ticket's choices, then the given marks.
  /// A given mark that the PPD lacks is a Usage failure.
  static Result<std::unique_ptr<PrintSession>> begin(const SessionSetup &setup);
  ~PrintSession() override;

  /// Plug-ins give panels in the order in which they were added.
  void addPlugin(std::shared_ptr<LoadedPlugin> plugin);

  /// Makes the panels (none without a PPD), loads their views, has them restore and tells them that
  /// they are about to show.
  void openPanels();

  /// Lets all panels go and makes them again on the same PPD and ticket.
  void reopenPanels();

  /// Runs something that the user or the host does. Afterwards, panels whose options were changed
  /// by constraints on the way restore once. Picks made on the way are taken back as one step.
  void perform(const std::function<void()> &action);

  /// Picks a choice as a panel's announcement does. False where the PPD lacks it or it was undone.
  bool pick(const QString &option, const QString &choice);

  /// Writes the layout: pages on a sheet, 0 for one.
  void setPagesPerSheet(int pages);
  int pagesPerSheet() const;

  /// Copies, pages, orientation. Collation is picked where the PPD has the option.
  JobSettings jobSettings() const;
  void setJobSettings(const JobSettings &settings);

  /// Reads an option of the command line that is about job settings: false where it is none, or the
  /// PPD has an option for it; a Usage failure where its value makes no sense.
  Result<bool> takeJobOption(const QString &name, const QString &value);

  /// Picks what a print server's word ("sides") stands for in the PPD, read together with the
  /// job's other options: one that names the PPD's option itself wins. Nothing where it stands for
  /// nothing. The ticket is the word's place.
  void pickWord(const OptionChoice &word, const QList<OptionChoice> &beside);

  /// Takes back the last step that changed something, and has the panels show it.
  void undo();
  bool canUndo() const { return m_picks.canUndo(); }

  const std::shared_ptr<PrinterDescription> &printer() const { return m_printer; }

  /// The queue that a job goes to, "NAME[/INSTANCE]"; null: the default one.
  const QString &destination() const { return m_destination; }

  const Marks &marks() const { return m_picks.marks(); }
  Ticket &ticket() const { return *m_ticket; }

  /// What a printer without PPD offers; empty where there is a PPD.
  const QList<SettingOffer> &offers() const { return m_offers; }

  /// The queue's and the user's options that the session began with, and under the PPD's keywords
  /// what the words among them stand for.
  const QList<OptionChoice> &queueOptions() const { return m_queueOptions; }

  const std::vector<std::unique_ptr<HostedPanel>> &panels() const { return m_panels; }

  /// Title and value of each line of each panel's summary.
  SummaryText summary() const;

  /// What the summary says of a job that nobody changed; nothing while it is not known. A session
  /// that began without a ticket knows it from its own panels.
  const std::optional<SummaryText> &defaultSummary() const { return m_defaultSummary; }

  /// Finds it out where it is not known, which costs what opening the panels costs.
  void learnDefaultSummary();

  /// What a job must say: every marked choice that is not the PPD's default or not the queue's,
  /// every ticket key, and in the words of the print server the pages per sheet, the job settings,
  /// and what was asked for in such words and still stands.
  QMap<QString, QString> jobOptions() const;

  /// Those of the queue's options that must not go with the job: words for which something else is
  /// marked by now.
  QStringList overruledOptions() const;

  /// The options whose marked choice is custom: its values look like a collection to libcups.
  QStringList optionsWithCustomValues() const;

  /// The ticket without the words for which something else is marked by now.
  TicketValues ticketToKeep() const;

  /// Every announced choice in order; null where it was empty.
  const QList<QPair<QString, QString>> &announced() const { return m_announced; }
  int resizeCount() const { return m_resizeCount; }

  /// Every line of the general log since the session began, as it was given.
  const QStringList &log() const { return m_log; }

  /// What constraints did so far, in words.
  const QStringList &notices() const { return m_notices; }

 Q_SIGNALS:
  /// Constraints changed or undid something; one sentence each.
  void noticed(const QStringList &words);

  /// Marks, ticket or summary may be others now. Comes once the running action has ended.
  void changed();

  /// A panel's view, and the container with it, has another size.
  void panelViewResized();

 private:
  explicit PrintSession(const SessionSetup &setup);

  bool choiceAnnounced(const QString &option, const QString &choice) override;
  void panelResized() override;

  Status markAll(const SessionSetup &setup);
  void markQueueOptions();
  bool hasOtherTicketKeys() const;
  void makePanels();
  void closePanels();
  bool apply(const QString &option, const QString &choice);
  void pickUnrecorded(const OptionChoice &choice);
  bool printerCollates() const;
  void notice(const Resolution &resolution);
  void endSoon();
  void endAction();
  void settle();

  // Panels borrow from all that stands before them here, and the PPD goes last.
  std::shared_ptr<PrinterDescription> m_printer;
  QString m_destination;
  std::shared_ptr<Ticket> m_ticket;
  PrintSessionHandle m_handle;
  Picks m_picks;
  QList<OptionChoice> m_queueOptions;
  QList<SettingOffer> m_offers;
  bool m_panelsMayResize;
  JobSettings m_jobSettings;
  AskedOptions m_askedOptions;
  std::vector<std::shared_ptr<LoadedPlugin>> m_plugins;
  std::vector<std::shared_ptr<PluginCallback>> m_callbacks;
  std::vector<std::unique_ptr<HostedPanel>> m_panels;

  std::optional<SummaryText> m_defaultSummary;
  bool m_isLearning = false;  // what panels log meanwhile is not the job's
  QList<QPair<QString, QString>> m_announced;
  int m_resizeCount = 0;
  QStringList m_log;
  QStringList m_notices;

  int m_actionDepth = 0;
  bool m_endIsPending = false;
  QStringList m_changedOptions;  // by constraints, since the running action began
  QStringList m_actionNotices;
};

}  // namespace orvek
