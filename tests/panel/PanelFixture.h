// SPDX-License-Identifier: Apache-2.0
// A panel on a real PPD with a host that records what it hears and marks what it is told.
#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPair>
#include <QSlider>
#include <QStringList>
#include <memory>

#include "panel/OrvekFinishing.h"
#include "platform/ui/Actions.h"
#include "platform/ui/Controls.h"
#include "platform/ui/Frames.h"
#include "platform/ui/PopUps.h"
#include "tests/support/TestPPD.h"

/// The panel's fields, for tests that stand in states no printer reaches.
struct OrvekFinishingAccess {
#define ORVEK_FIELD(name)                    \
  static auto &name(OrvekFinishing &panel) { \
    return panel.name;                       \
  }
  ORVEK_FIELD(pdeView)
  ORVEK_FIELD(basicView)
  ORVEK_FIELD(bookletView)
  ORVEK_FIELD(staplingOption)
  ORVEK_FIELD(foldingOption)
  ORVEK_FIELD(offsetCollatedSetOtion)
  ORVEK_FIELD(paperSizeOption)
  ORVEK_FIELD(staplingSelection)
  ORVEK_FIELD(foldingSelection)
  ORVEK_FIELD(punchSelection)
  ORVEK_FIELD(paperDestSelection)
  ORVEK_FIELD(paperSizeSelection)
  ORVEK_FIELD(offsetCollatedSetSelection)
  ORVEK_FIELD(staplingChoices)
  ORVEK_FIELD(foldingChoices)
  ORVEK_FIELD(punchChoices)
  ORVEK_FIELD(paperDestChoices)
  ORVEK_FIELD(paperSizeChoices)
  ORVEK_FIELD(offsetCollatedSetChoices)
  ORVEK_FIELD(modelNumber)
  ORVEK_FIELD(hasBooklet)
  ORVEK_FIELD(initialized)
  ORVEK_FIELD(uiInitialized)
  ORVEK_FIELD(canResizeView)
  ORVEK_FIELD(useConstraintHandling)
  ORVEK_FIELD(basicSize)
  ORVEK_FIELD(advancedSize)
  ORVEK_FIELD(ppd)
#undef ORVEK_FIELD
};

namespace orvek::test {

using Announced = QList<QPair<QString, QString>>;

/// Lends PPD and ticket, marks announced choices as any host must, records everything.
class RecordingHost : public PDEPluginCallback {
 public:
  RecordingHost(ppd_file_t *ppd, std::shared_ptr<Ticket> ticket);
  ppd_file_t *ppdFile() override;
  PMPrintSession printSession() override;
  PMPrintSettings printSettings() override;
  bool willChangePPDOptionKeyValue_ppdChoice(const QString &key, const QString &choice) override;

  // What the host was asked for, in order.
  QStringList calls;
  Announced announced;
  // Null: a host without ticket.
  std::unique_ptr<PrintSettings> settings;

 private:
  ppd_file_t *m_ppd;
};

/// The same host where panels may change their size.
class ResizingHost : public RecordingHost, public PDEPanelResizeObserver {
 public:
  using RecordingHost::RecordingHost;
  void panelViewDidResize() override { ++resized; }
  int resized = 0;
};

enum class HostKind { Resizing, Fixed };

/// One panel on one printer, shown as a host shows it. `bundle` null stands for a missing bundle.
class PanelFixture : public testing::Test {
 protected:
  void open(const PPDText &text, HostKind kind = HostKind::Resizing);
  void openHandle(PPDHandle handle, HostKind kind = HostKind::Resizing);
  /// Only makes the panel: no view.
  void create(PPDHandle handle, HostKind kind = HostKind::Resizing);
  /// What a host does after panelView: restore and willShow.
  void show();

  template <typename Control>
  Control *control(const char *name) const {
    for (const auto &[field, widget] : panel->inspectedControls()) {
      if (field == QLatin1String(name)) return qobject_cast<Control *>(widget);
    }
    return nullptr;
  }
  QComboBox *popUp(const char *name) const { return control<QComboBox>(name); }
  QCheckBox *box(const char *name) const { return control<QCheckBox>(name); }
  QSlider *slider(const char *name) const { return control<QSlider>(name); }
  QLineEdit *field(const char *name) const { return control<QLineEdit>(name); }
  QLabel *label(const char *name) const { return control<QLabel>(name); }
  QWidget *view(const char *name) const { return control<QWidget>(name); }

  QString ticketText(const char *key) const;
  QString selection(const char *name) const;

  /// As a user does it.
  void pick(const char *popUpName, int index);
  void click(const char *boxName, int state);
  void type(const char *fieldName, const QString &text);

  PPDHandle ppd;
  std::shared_ptr<Ticket> ticket = std::make_shared<Ticket>();
  std::shared_ptr<Bundle> bundle =
      Bundle::atPath(QStringLiteral(ORVEK_BUNDLE_DIR), {QStringLiteral("en")});
  std::shared_ptr<RecordingHost> host;
  std::shared_ptr<OrvekFinishing> panel;
};

/// [[key, choice], ...] as one readable text; an absent choice reads "-".
QString asText(const Announced &announced);

/// A copy of the built bundle that a test may damage.
class BundleCopy {
 public:
  BundleCopy();
  QString path() const { return m_folder.path(); }
  std::shared_ptr<Bundle> open(const QStringList &languages = {QStringLiteral("en")}) const;
  void remove(const QString &file) const;
  void write(const QString &file, const QByteArray &content) const;
  QByteArray read(const QString &file) const;

 private:
  QTemporaryDir m_folder;
};

}  // namespace orvek::test
