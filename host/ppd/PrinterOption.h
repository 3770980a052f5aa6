// SPDX-License-Identifier: Apache-2.0
// One option of a printer, as views ask for it. A look into the parsed PPD: nothing is copied until
// it is asked for, since a PPD may have thousands of options and a page shows twenty.
#pragma once

#include <QList>
#include <QString>
#include <optional>

struct ppd_choice_s;
struct ppd_option_s;

namespace orvek {

class LocalTexts;

/// How many of an option's choices a PPD allows at a time; Boolean is on or off.
enum class OptionKind { Boolean, PickOne, PickMany };

/// One choice of an option. Plain data.
struct PrinterChoice {
  QString keyword;
  /// For people, in the user's language, by the same rule as the option's.
  QString text;
  /// What the PPD itself calls it, in whatever language.
  QString textInPpd;
};

/// One option. Borrows from the PrinterDescription that gave it and must not outlive it. Nothing
/// fails; an absent option, as one that the PPD lacks, is inert: its texts are null, its lists
/// empty. To be used on the thread of its description.
class PrinterOption {
 public:
  /// Absent.
  PrinterOption() = default;

  explicit operator bool() const { return m_option != nullptr; }

  /// As the PPD spells it.
  QString keyword() const;

  /// For people, in the user's language: the PPD's own text, or for a standard option that has none
  /// in that language our name for it; the keyword where there is neither.
  QString text() const;

  /// What the PPD itself calls it, in whatever language: panels show that.
  QString textInPpd() const;

  /// The PPD's own default, as it is written there; it need not be one of the choices.
  QString defaultChoice() const;

  /// PickOne of an absent one.
  OptionKind kind() const;

  /// True for an option that is on or off: its choices are "True" and "False".
  bool isSwitch() const;

  /// In the PPD's order.
  QList<PrinterChoice> choices() const;

  /// The one of this name, without regard to case, and for a custom value the custom choice that it
  /// is a value of. Nothing where the PPD has none such.
  std::optional<PrinterChoice> choice(const QString &choice) const;

  /// The choice as the PPD spells it, a custom value as it was given. Null where the PPD lacks it,
  /// and for an empty one.
  QString spelled(const QString &choice) const;

 private:
  friend class PrinterDescription;
  PrinterOption(ppd_option_s *option, const LocalTexts *texts) : m_option(option), m_texts(texts) {}

  PrinterChoice choiceOf(const ppd_choice_s &choice) const;

  ppd_option_s *m_option = nullptr;
  const LocalTexts *m_texts = nullptr;
};

/// Options that a PPD puts into one group. Borrows as they do. Plain data.
struct PrinterOptionGroup {
  /// For people; of a group within another both texts, with a dash between.
  QString text;
  QList<PrinterOption> options;
};

}  // namespace orvek
