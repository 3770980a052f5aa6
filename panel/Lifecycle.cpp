// SPDX-License-Identifier: Apache-2.0
// The panel in its host: made, shown, restored, saved, let go. Thin on purpose: what these
// operations do stands in the other sources, here stands in which order.

#include <QCheckBox>
#include <QComboBox>
#include <QWidget>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "panel/Keywords.h"
#include "panel/OrvekFinishing.h"
#include "platform/system/Log.h"
#include "platform/system/MainBundle.h"
#include "platform/ui/Controls.h"
#include "platform/ui/Frames.h"
#include "platform/ui/InterfaceResource.h"
#include "platform/ui/PopUps.h"

using namespace orvek;

namespace {

constexpr std::array finishingKeywords{staplingKeyword, foldingKeyword, punchKeyword,
                                       paperDestKeyword, offsetKeyword};

// A panel takes a reference to its bundle and never gives it back: code and resources of a plug-in
// that was shown once stay with the process.
void keepForProcessLifetime(std::shared_ptr<Bundle> bundle) {
  static std::vector<std::shared_ptr<Bundle>> kept;
  if (std::find(kept.begin(), kept.end(), bundle) == kept.end()) {
    kept.push_back(std::move(bundle));
  }
}

void selectRecord(QComboBox *popUp, const PDEChoiceList *list, const PDEChoice *selection) {
  if (list == nullptr) return;
  const auto found = std::find_if(list->begin(), list->end(),
                                  [=](const auto &record) { return record.get() == selection; });
  if (found != list->end()) selectItemAtIndex(popUp, static_cast<int>(found - list->begin()));
}

}  // namespace

std::shared_ptr<OrvekFinishing> OrvekFinishing::initWithCallback_andBundle(
    std::shared_ptr<PDEPluginCallback> callback, std::shared_ptr<Bundle> bundle) {
  logLine(QStringLiteral("initWithCallback: finishing\n"));
  return std::shared_ptr<OrvekFinishing>(
      new OrvekFinishing(std::move(callback), std::move(bundle)));
}

OrvekFinishing::OrvekFinishing(std::shared_ptr<PDEPluginCallback> callback,
                               std::shared_ptr<Bundle> bundle)
    : pdePluginCallbackObject(std::move(callback)), pluginBundle(std::move(bundle)) {
  keepForProcessLifetime(pluginBundle);
  useConstraintHandling = true;
  canResizeView = respondsToPanelViewDidResize(pdePluginCallbackObject.get());
  ppd = ppdFile(pdePluginCallbackObject.get());
  session = printSession(pdePluginCallbackObject.get());
  settings = printSettings(pdePluginCallbackObject.get());

  staplingOption = ppdFindOption(ppd, staplingKeyword);
  staplingChoices = arrayFromPPDOption(staplingOption);
  foldingOption = ppdFindOption(ppd, foldingKeyword);
  foldingChoices = arrayFromPPDOption(foldingOption);
  punchOption = ppdFindOption(ppd, punchKeyword);
  punchChoices = arrayFromPPDOption(punchOption);
  paperDestOption = ppdFindOption(ppd, paperDestKeyword);
  paperDestChoices = arrayFromPPDOption(paperDestOption);
  offsetCollatedSetOtion = ppdFindOption(ppd, offsetKeyword);
  offsetCollatedSetChoices = arrayFromPPDOption(offsetCollatedSetOtion);

  recordApplicationName();
}

void OrvekFinishing::recordApplicationName() {
  const std::optional<QJsonObject> &info = mainBundleInfo();
  if (!info) return;
  const QString name = info->value(QLatin1String(kCFBundleExecutableKey)).toString();
  writeTicket(appNameKey, name.isNull() ? QStringLiteral("OrvekFinishing") : name);
}

// The fields' order is that of letting go, backwards: lists, name and host before the view, which
// ends with the base class. Menu items outlive the records they point to, and nobody asks them.
OrvekFinishing::~OrvekFinishing() = default;

QWidget *OrvekFinishing::panelView() {
  if (pdeView != nullptr) return pdeView;
  loadInterface(pluginBundle.get(), QStringLiteral("Finishing"), this);
  initializeUI();
  embedControls();
  basicSize = frameSize(basicView);
  advancedSize = frameSize(bookletView);
  advancedSize.rheight() += basicSize.height();
  showAdvanced(!canResizeView);
  if (!canResizeView) {
    // This host can't be told of a change of size, so the tall form stays and the box can't undo
    // it.
    setState(bookletChckBox, stateOn);
    setEnabled(bookletChckBox, false);
  }
  return pdeView;
}

void OrvekFinishing::showAdvanced(bool show) {
  setHidden(bookletView, !show);
  setFrameSize(pdeView, show ? advancedSize : basicSize);
}

QString OrvekFinishing::panelName() {
  if (thePDEName.isNull()) thePDEName = localizedString(pluginBundle.get(), panelNameString);
  return thePDEName;
}

QString OrvekFinishing::panelKind() {
  return QStringLiteral("com.orvek.print.pde.OrvekFinishing");
}

QStringList OrvekFinishing::supportedPPDOptionKeys() {
  const std::array<std::pair<const ppd_option_t *, const char *>, 5> claimed{
      {{staplingOption, staplingKeyword},
       {foldingOption, foldingKeyword},
       {punchOption, punchKeyword},
       {paperDestOption, paperDestKeyword},
       {offsetCollatedSetOtion, offsetKeyword}}};
  QStringList keys;
  for (const auto &[option, keyword] : claimed) {
    if (option != nullptr) keys << QLatin1String(keyword);
  }
  return keys;
}

void OrvekFinishing::willShow() {
  reloadControlsWithPresets();
}

bool OrvekFinishing::restoreValuesAndReturnError(PDEError *) {
  for (const char *keyword : finishingKeywords) {
    const QLatin1String key(keyword);
    QVariant value;
    PMPrintSettingsGetValue(settings, key, &value);
    willChangePPDOption(pdePluginCallbackObject.get(), key, textReading(value));
  }
  updateMarkedSelections();
  updateUI();
  reloadControlsWithPresets();
  return true;
}

bool OrvekFinishing::saveValuesAndReturnError(PDEError *) {
  return true;
}

void OrvekFinishing::updateUI() {
  selectRecord(staplingPopup, staplingChoices.get(), staplingSelection);
  selectRecord(foldingPopup, foldingChoices.get(), foldingSelection);
  selectRecord(punchPopup, punchChoices.get(), punchSelection);
  selectRecord(paperDestPopup, paperDestChoices.get(), paperDestSelection);
}
