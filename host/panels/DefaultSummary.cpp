// SPDX-License-Identifier: Apache-2.0
// Opens a second set of panels on a ticket that goes with them.

#include "host/panels/DefaultSummary.h"

#include <utility>

#include "host/panels/PluginCallback.h"
#include "host/ppd/Constraints.h"
#include "platform/plugin/PDEPlugin.h"
#include "platform/printing/PrintSession.h"

namespace orvek {
namespace {

// What panels announce while they open is marked and goes no further.
class Marker final : public PanelListener {
 public:
  explicit Marker(Marks &marks) : m_marks(marks) {}

  bool choiceAnnounced(const QString &option, const QString &choice) override {
    return m_marks.mark(option, choice);
  }
  void panelResized() override {}

 private:
  Marks &m_marks;
};

void markUntouchedJob(Marks &marks) {
  const QList<OptionChoice> now = marks.all();
  marks.markDefaults();
  for (const OptionChoice &mark : now) {
    if (isInstalledEquipment(marks.ppd(), mark.option)) marks.mark(mark.option, mark.choice);
  }
}

SummaryText summaryOfNewPanels(LoadedPlugin &plugin, const std::shared_ptr<PluginCallback> &host) {
  std::vector<std::unique_ptr<HostedPanel>> panels;
  const QVariant type(QString::fromLatin1(printDialogPanelType));
  for (const auto &panel : plugin.factory->PDEPanelsForType_withHostInfo(type, host)) {
    if (panel) panels.emplace_back(std::make_unique<HostedPanel>(panel))->start();
  }
  return summaryOf(panels);
}

}  // namespace

SummaryText summaryOf(const std::vector<std::unique_ptr<HostedPanel>> &panels) {
  SummaryText lines;
  for (const auto &hosted : panels) {
    const QMap<QString, QString> info = hosted->panel().summaryInfo();
    for (auto line = info.begin(); line != info.end(); ++line) {
      lines.append({line.key(), line.value()});
    }
  }
  return lines;
}

SummaryText defaultSummary(const std::vector<std::shared_ptr<LoadedPlugin>> &plugins, Marks &marks,
                           bool panelsMayResize) {
  const MarksSnapshot before = marks.snapshot();
  markUntouchedJob(marks);
  Marker marker(marks);
  PrintSessionHandle session;
  const PanelLoan loan{marks.ppd(), &session, std::make_shared<Ticket>()};
  SummaryText lines;
  for (const auto &plugin : plugins) {
    const auto host = PluginCallback::make(&marker, loan, panelsMayResize);
    lines << summaryOfNewPanels(*plugin, host);
    host->detach();
  }
  marks.restore(before);
  return lines;
}

}  // namespace orvek
