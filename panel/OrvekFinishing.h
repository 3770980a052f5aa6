// SPDX-License-Identifier: Apache-2.0
// The panel "Finishing". This header is its table of contents:
//
//   1. Life in the host      Lifecycle.cpp        made, shown, restored, saved, let go
//   2. Choices and marks     Choices.cpp          PPD options as lists, marks as selections
//   3. Ticket                Ticket.cpp           booklet controls to and from the job's settings
//   4. Summary               Summary.cpp          one line per setting
//   5. Construction          Construction.cpp     menus filled, rows hidden and closed up
//   6. Changes               Changes.cpp          what follows a pick; what the PPD must have
//   7. Booklet               Booklet.cpp          gutter, creep, target paper
//   8. Stapling preview      StaplingPreview.cpp  which picture is shown
//   9. Inspection            Inspection.cpp       the panel shown to scripts
//
// Names of keys and keywords: Keywords.h. One choice: PDEChoice.h. Everything runs on the interface
// thread. Whatever is absent (an option, a control, the ticket, the host) is inert: the
// vocabularies of platform/ui, platform/plugin and PDEChoice.h do nothing and yield nothing for it.
#pragma once

#include <QObject>
#include <QSizeF>
#include <cstddef>
#include <memory>

#include "panel/PDEChoice.h"
#include "platform/plugin/PDEInspection.h"
#include "platform/plugin/PDEPanel.h"
#include "platform/plugin/PDEPluginCallback.h"
#include "platform/ui/Bundle.h"

Q_MOC_INCLUDE(<QCheckBox>)
Q_MOC_INCLUDE(<QComboBox>)
Q_MOC_INCLUDE(<QGroupBox>)
Q_MOC_INCLUDE(<QLabel>)
Q_MOC_INCLUDE(<QLineEdit>)
Q_MOC_INCLUDE(<QSlider>)
Q_MOC_INCLUDE(<QWidget>)

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSlider;
class QWidget;

class OrvekFinishing : public QObject, public PDEPanel, public PDEInspection {
  Q_OBJECT

  // Outlets: the interface resource "Finishing" fills the field of the same name.
  Q_PROPERTY(QWidget *pdeView MEMBER pdeView)
  Q_PROPERTY(QWidget *basicView MEMBER basicView)
  Q_PROPERTY(QLabel *staplingLbl MEMBER staplingLbl)
  Q_PROPERTY(QLabel *foldingLbl MEMBER foldingLbl)
  Q_PROPERTY(QLabel *punchLbl MEMBER punchLbl)
  Q_PROPERTY(QLabel *paperDestLbl MEMBER paperDestLbl)
  Q_PROPERTY(QCheckBox *offsetChckBox MEMBER offsetChckBox)
  Q_PROPERTY(QCheckBox *bookletChckBox MEMBER bookletChckBox)
  Q_PROPERTY(QComboBox *staplingPopup MEMBER staplingPopup)
  Q_PROPERTY(QComboBox *foldingPopup MEMBER foldingPopup)
  Q_PROPERTY(QComboBox *punchPopup MEMBER punchPopup)
  Q_PROPERTY(QComboBox *paperDestPopup MEMBER paperDestPopup)
  Q_PROPERTY(QLabel *imageWindow MEMBER imageWindow)
  Q_PROPERTY(QWidget *bookletView MEMBER bookletView)
  Q_PROPERTY(QGroupBox *bookletBox MEMBER bookletBox)
  Q_PROPERTY(QLabel *gutterLbl MEMBER gutterLbl)
  Q_PROPERTY(QLabel *creepLbl MEMBER creepLbl)
  Q_PROPERTY(QLineEdit *gutterTxtBox MEMBER gutterTxtBox)
  Q_PROPERTY(QLineEdit *creepTxtBox MEMBER creepTxtBox)
  Q_PROPERTY(QLabel *paperSizeLbl MEMBER paperSizeLbl)
  Q_PROPERTY(QCheckBox *rToLChckBox MEMBER rToLChckBox)
  Q_PROPERTY(QCheckBox *pageBroderChckBox MEMBER pageBroderChckBox)
  Q_PROPERTY(QComboBox *paperSizePopup MEMBER paperSizePopup)
  Q_PROPERTY(QSlider *gutterSlider MEMBER gutterSlider)
  Q_PROPERTY(QSlider *creepSlider MEMBER creepSlider)

 public:
  /// An index into a choice list that stands for "no current choice": the all-ones word.
  static constexpr std::size_t noCurrentChoice = ~std::size_t{0};

  // 1. Life in the host: Lifecycle.cpp

  /// Makes the panel: takes a counted reference to callback and bundle (either may be null), looks
  /// up the five options it takes charge of, and notes the calling application in the ticket.
  static std::shared_ptr<OrvekFinishing> initWithCallback_andBundle(
      std::shared_ptr<PDEPluginCallback> callback, std::shared_ptr<orvek::Bundle> bundle);
  ~OrvekFinishing() override;

  /// Loads, fills and arranges the view on the first call; later calls give the same view. Null
  /// while the interface resource supplies none, and then the next call tries again.
  QWidget *panelView() override;

  /// Shows the booklet section and takes the advanced size, or hides it and takes the basic one.
  /// The host is not told; the caller does that where the host can resize panels.
  void showAdvanced(bool show);

  QString panelName() override;
  QString panelKind() override;
  QStringList supportedPPDOptionKeys() override;
  void willShow() override;
  bool shouldHide() override { return true; }
  bool shouldPrint() override { return true; }
  bool shouldShowHelp() override { return true; }

  /// Announces the five finishing keys as the ticket has them, so that the host marks the PPD by
  /// them; then takes everything else from the marks and the ticket.
  bool restoreValuesAndReturnError(PDEError *error) override;

  /// Nothing to do: values travel while the user works.
  bool saveValuesAndReturnError(PDEError *error) override;

  /// Points the four finishing pop-ups at the current selections.
  void updateUI();

  // 2. Choices and marks: Choices.cpp

  /// One record per choice, in the PPD's order; null for an absent option.
  static std::unique_ptr<PDEChoiceList> arrayFromPPDOption(ppd_option_t *option);

  /// Index of the current choice: the marked one, else the PPD's default, else noCurrentChoice.
  std::size_t indexOfMarkedOption_forKey(ppd_option_t *option, const char *keyword) const;

  /// Takes the four pop-ups' selections from the marks. Offset and paper size are left alone: the
  /// box's handler sets the one, nothing ever sets the other.
  void updateMarkedSelections();

  /// The record of the pop-up's selected item (null: none), announced to the host on every call.
  const PDEChoice *selectionForPopUp_withKey(QComboBox *popUp, const char *keyword);

  // 3. Ticket: Ticket.cpp

  /// Writes the six booklet keys from the controls. Nothing without booklet maker or ticket.
  void syncToTicket();

  /// Brings the controls in line with the ticket and, for the offset box, with the marks; booklet
  /// gives way to several pages per sheet.
  void reloadControlsWithPresets();

  // 4. Summary: Summary.cpp

  /// What the controls show: title to text. Lines without title or value are left out.
  QMap<QString, QString> summaryInfo() override;

  // 5. Construction: Construction.cpp

  /// Fills menus and labels from the PPD. kPMInvalidPDEContext, and nothing filled, for a PPD of
  /// another maker's driver.
  OSStatus initializeUI();

  /// Hides the rows of what the printer lacks, closes the gaps, selects the PPD's defaults,
  /// prepares the booklet section. Always 0.
  OSStatus embedControls();

  /// "TEXT:" from the option's translation, "KEYWORD:" where that is not UTF-8. Nothing for an
  /// absent option.
  static void setLocalizedStringForLabel_fromPPDOption(QLabel *label, const ppd_option_t *option);

  // 6. Changes: Changes.cpp

  /// What the controls' actions call; each takes the sending control. Stapling and folding exclude
  /// each other: a real choice of one sets the other to its first.
  Q_INVOKABLE void changeStaplingOption(QWidget *sender);
  Q_INVOKABLE void changeFoldingOption(QWidget *sender);
  Q_INVOKABLE void changePunchOption(QWidget *sender);
  Q_INVOKABLE void changePaperDestOption(QWidget *sender);
  Q_INVOKABLE void offSetChange(QWidget *sender);

  /// 0 for a PPD of the maker's driver, else kPMInvalidPDEContext. Whether there is anything to
  /// staple or fold is looked at and does not count.
  OSStatus checkFinishingPDEContext();
  OSStatus checkPDEContextCUPSForStaplingBooklet();

  /// Enables the hole-punch items that the installed unit can make. Once, when the menu is filled.
  void validateHolePunchMenuItems();

  // 7. Booklet: Booklet.cpp

  /// Fills the target paper sizes: the current job's, then all but the last of the PPD's, known to
  /// scripts by their keywords.
  void fillTargetPaperSizePopup();

  /// What the controls' actions call. Each writes its ticket key at once, and nothing without a
  /// ticket.
  Q_INVOKABLE void changePaperSizeOption(QWidget *sender);
  Q_INVOKABLE void enableBookletChange(QWidget *sender);
  Q_INVOKABLE void rToLChange(QWidget *sender);
  Q_INVOKABLE void paperBorderClick(QWidget *sender);
  Q_INVOKABLE void gutterSliderTracking(QWidget *sender);
  Q_INVOKABLE void creepSliderTracking(QWidget *sender);

  /// The text of `field` changed under the user's hands.
  Q_INVOKABLE void controlTextDidChange(QWidget *field);

  // 8. Stapling preview: StaplingPreview.cpp

  /// Shows the picture of the finished sheet for the current stapling and folding.
  void updateStaplingImage();

  // 9. Inspection: Inspection.cpp

  QList<QPair<QString, QWidget *>> inspectedControls() const override;
  QList<QPair<QString, QString>> inspectedSelections() const override;
  QString inspectedModelNumber() const override { return modelNumber; }

 private:
  // Lets tests stand in states that no printer reaches.
  friend struct OrvekFinishingAccess;

  OrvekFinishing(std::shared_ptr<PDEPluginCallback> callback,
                 std::shared_ptr<orvek::Bundle> bundle);

  // Of section 1
  void recordApplicationName();
  // Of section 3
  void loadBookletControlsFromTicket();
  void writeTicket(QLatin1String key, const QString &value);
  // Any state but off is "True".
  void writeFlag(QLatin1String key, const QCheckBox *box);
  void writeNumber(QLatin1String key, int number);
  // Of section 4
  void addFinishingLine(QMap<QString, QString> &lines, const PDEChoiceList *choices,
                        const ppd_option_t *option, const PDEChoice *selection) const;
  void addBookletLines(QMap<QString, QString> &lines) const;
  // Of section 5
  struct Row;
  bool isMarkedTrue(const char *keyword) const;
  bool isMarkedNotFalse(const char *keyword) const;
  int embedPopUpRow(const Row &row, bool shown, int hiddenRows);
  void embedOffsetRow(int hiddenRows);
  void embedBookletRow(int hiddenRows);
  // Of section 8
  QString imageKey() const;
  QString imageFileName() const;

  // The fields, in the order and under the names that every source of the panel knows.

  // Host objects. PPD, session and ticket are lent by the host; the name is null until first asked
  // for.
  std::shared_ptr<PDEPluginCallback> pdePluginCallbackObject;
  QString thePDEName;
  std::shared_ptr<orvek::Bundle> pluginBundle;
  ppd_file_t *ppd = nullptr;
  PMPrintSession session = nullptr;
  PMPrintSettings settings = nullptr;

  // Views and controls, all from the interface resource. The panel owns the root view.
  QWidget *pdeView = nullptr;
  QWidget *basicView = nullptr;
  QLabel *staplingLbl = nullptr;
  QLabel *foldingLbl = nullptr;
  QLabel *punchLbl = nullptr;
  QLabel *paperDestLbl = nullptr;
  QCheckBox *offsetChckBox = nullptr;
  QCheckBox *bookletChckBox = nullptr;
  QComboBox *staplingPopup = nullptr;
  QComboBox *foldingPopup = nullptr;
  QComboBox *punchPopup = nullptr;
  QComboBox *paperDestPopup = nullptr;
  QLabel *imageWindow = nullptr;
  QWidget *bookletView = nullptr;
  QGroupBox *bookletBox = nullptr;
  QLabel *gutterLbl = nullptr;
  QLabel *creepLbl = nullptr;
  QLineEdit *gutterTxtBox = nullptr;
  QLineEdit *creepTxtBox = nullptr;
  QLabel *paperSizeLbl = nullptr;
  QCheckBox *rToLChckBox = nullptr;
  QCheckBox *pageBroderChckBox = nullptr;
  QComboBox *paperSizePopup = nullptr;
  QSlider *gutterSlider = nullptr;
  QSlider *creepSlider = nullptr;

  // Every pick is announced: true from creation on.
  bool useConstraintHandling = false;
  // The host answers panelViewDidResize.
  bool canResizeView = false;
  // The PPD says OVKHasBooklet.
  bool hasBooklet = false;
  // Menus filled; rows arranged.
  bool initialized = false;
  bool uiInitialized = false;

  // Null until the menus were filled.
  QString modelNumber;
  // In points: of the basic view, and of the view with the booklet section below it.
  QSizeF basicSize{0, 0};
  QSizeF advancedSize{0, 0};

  // The six options, lent by the PPD.
  ppd_option_t *staplingOption = nullptr;
  ppd_option_t *foldingOption = nullptr;
  ppd_option_t *punchOption = nullptr;
  ppd_option_t *paperDestOption = nullptr;
  ppd_option_t *paperSizeOption = nullptr;
  ppd_option_t *offsetCollatedSetOtion = nullptr;

  // The six selections: records of the lists below, never counted. The paper size is never set, and
  // the summary copes.
  const PDEChoice *staplingSelection = nullptr;
  const PDEChoice *foldingSelection = nullptr;
  const PDEChoice *punchSelection = nullptr;
  const PDEChoice *paperDestSelection = nullptr;
  const PDEChoice *paperSizeSelection = nullptr;
  const PDEChoice *offsetCollatedSetSelection = nullptr;

  // The six lists, absent where their option is.
  std::unique_ptr<PDEChoiceList> staplingChoices;
  std::unique_ptr<PDEChoiceList> foldingChoices;
  std::unique_ptr<PDEChoiceList> punchChoices;
  std::unique_ptr<PDEChoiceList> paperDestChoices;
  std::unique_ptr<PDEChoiceList> paperSizeChoices;
  std::unique_ptr<PDEChoiceList> offsetCollatedSetChoices;
};
