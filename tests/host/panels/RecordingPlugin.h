// SPDX-License-Identifier: Apache-2.0
// A plug-in made by a test, whose panel writes down every call.
#pragma once

#include <QStringList>
#include <QWidget>
#include <memory>

#include "host/panels/PluginLoader.h"
#include "platform/plugin/PDEPlugin.h"

namespace orvek::test {

/// A panel that claims two options, re-announces the ticket's choices on restore as panels do, and
/// keeps a record of the calls that reached it.
class RecordingPanel final : public PDEPanel {
 public:
  RecordingPanel(std::shared_ptr<QStringList> calls, std::shared_ptr<PDEPluginCallback> host)
      : m_calls(std::move(calls)), m_host(std::move(host)), m_view(std::make_unique<QWidget>()) {
    m_view->resize(300, 100);
    *m_calls << QStringLiteral("made");
  }
  ~RecordingPanel() override { *m_calls << QStringLiteral("destroyed"); }
  RecordingPanel(const RecordingPanel &) = delete;
  RecordingPanel &operator=(const RecordingPanel &) = delete;

  QWidget *panelView() override { return noted("panelView", m_view.get()); }
  QString panelName() override { return noted("panelName", QStringLiteral("Recorder")); }
  QString panelKind() override { return noted("panelKind", QStringLiteral("test.recorder")); }
  QStringList supportedPPDOptionKeys() override {
    return noted("supportedPPDOptionKeys", claimed());
  }
  void willShow() override { *m_calls << QStringLiteral("willShow"); }
  bool shouldHide() override { return true; }
  bool shouldPrint() override { return true; }
  bool shouldShowHelp() override { return true; }
  bool saveValuesAndReturnError(PDEError *) override { return noted("save", true); }
  QMap<QString, QString> summaryInfo() override { return {{"Folding", marked("OVKFolding")}}; }

  bool restoreValuesAndReturnError(PDEError *) override {
    *m_calls << QStringLiteral("restore");
    for (const QString &key : claimed()) {
      QVariant value;
      PMPrintSettingsGetValue(m_host->printSettings(), key, &value);
      m_host->willChangePPDOptionKeyValue_ppdChoice(key, textReading(value));
    }
    return true;
  }

  void resizeTo(int width, int height) {
    m_view->resize(width, height);
    panelViewDidResize(m_host.get());
  }

  PDEPluginCallback &host() { return *m_host; }

 private:
  static QStringList claimed() { return {"OVKStapling", "OVKFolding"}; }

  QString marked(const char *option) const {
    const ppd_choice_t *choice = ppdFindMarkedChoice(m_host->ppdFile(), option);
    return choice == nullptr ? QString() : QString::fromUtf8(choice->choice);
  }

  template <typename T>
  T noted(const char *call, T answer) {
    *m_calls << QString::fromLatin1(call);
    return answer;
  }

  /// May be read after plug-in or panel have gone.
  std::shared_ptr<QStringList> m_calls;
  std::shared_ptr<PDEPluginCallback> m_host;
  std::unique_ptr<QWidget> m_view;
};

/// Makes RecordingPanels and remembers the last one.
class RecordingPlugin final : public PDEPlugin {
 public:
  bool initWithBundle(Bundle *) override { return true; }

  QList<std::shared_ptr<PDEPanel>> PDEPanelsForType_withHostInfo(
      const QVariant &type, const std::shared_ptr<PDEPluginCallback> &host) override {
    if (type.toString() != QLatin1String(printDialogPanelType)) return {};
    auto panel = std::make_shared<RecordingPanel>(calls, host);
    last = panel;
    return {panel};
  }

  std::shared_ptr<QStringList> calls = std::make_shared<QStringList>();
  std::weak_ptr<RecordingPanel> last;
};

}  // namespace orvek::test
