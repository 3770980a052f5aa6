// SPDX-License-Identifier: Apache-2.0
// Walks over the panels, so that nobody else has to.

#include "host/panels/PanelSet.h"

#include <utility>

#include "host/panels/PanelContainer.h"

namespace orvek {

PanelSet::PanelSet(PanelListener &listener, PanelLoan loan, bool panelsMayResize)
    : m_listener(listener), m_loan(std::move(loan)), m_panelsMayResize(panelsMayResize) {}

PanelSet::~PanelSet() {
  close();
}

void PanelSet::open(PluginList plugins) {
  m_plugins = std::move(plugins);
  make();
}

void PanelSet::make() {
  if (m_loan.ppd == nullptr) return;
  const QVariant type(QString::fromLatin1(printDialogPanelType));
  for (const auto &plugin : m_plugins) {
    m_callbacks.push_back(PluginCallback::make(&m_listener, m_loan, m_panelsMayResize));
    for (const auto &panel :
         plugin->factory->PDEPanelsForType_withHostInfo(type, m_callbacks.back())) {
      if (!panel) continue;
      m_panels.emplace_back(std::make_unique<HostedPanel>(panel))->start();
    }
  }
}

void PanelSet::reopen() {
  close();
  make();
}

void PanelSet::close() {
  m_panels.clear();
  for (const auto &callback : m_callbacks) callback->detach();
  m_callbacks.clear();
}

void PanelSet::loadViews() {
  for (const auto &hosted : m_panels) hosted->loadView();
}

void PanelSet::restore() {
  for (const auto &hosted : m_panels) hosted->panel().restoreValuesAndReturnError(nullptr);
}

void PanelSet::save() {
  for (const auto &hosted : m_panels) hosted->panel().saveValuesAndReturnError(nullptr);
}

void PanelSet::willShow() {
  for (const auto &hosted : m_panels) hosted->panel().willShow();
}

void PanelSet::restoreClaiming(const QStringList &options) {
  for (const auto &hosted : m_panels) {
    if (hosted->claimsAny(options)) hosted->panel().restoreValuesAndReturnError(nullptr);
  }
}

void PanelSet::makeRoom() {
  for (const auto &hosted : m_panels) {
    if (hosted->container() != nullptr) hosted->container()->makeRoom();
  }
}

const HostedPanel *PanelSet::first() const {
  return m_panels.empty() ? nullptr : m_panels.front().get();
}

QList<PanelPlace> PanelSet::places() const {
  QList<PanelPlace> places;
  for (const auto &hosted : m_panels) {
    if (hosted->container() == nullptr || hosted->view() == nullptr) continue;
    places.append({hosted->name(), hosted->container(), hosted->hasContent()});
  }
  return places;
}

PanelControl PanelSet::findControl(const QString &name) const {
  for (const auto &hosted : m_panels) {
    if (hosted->inspection() == nullptr) continue;
    for (const auto &[controlName, control] : hosted->inspection()->inspectedControls()) {
      if (controlName == name && control != nullptr) return {control, hosted->view()};
    }
  }
  return {};
}

QStringList PanelSet::claimedOptions() const {
  QStringList options;
  for (const auto &hosted : m_panels) options << hosted->claimedOptions();
  return options;
}

SummaryText PanelSet::summary() const {
  SummaryText lines;
  for (const auto &hosted : m_panels) {
    const QMap<QString, QString> info = hosted->panel().summaryInfo();
    for (auto line = info.begin(); line != info.end(); ++line) {
      lines.append({line.key(), line.value()});
    }
  }
  return lines;
}

}  // namespace orvek
