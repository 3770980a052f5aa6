// SPDX-License-Identifier: Apache-2.0
// One choice of one PPD option, with the two texts it is known by.
#pragma once

#include <QString>
#include <cstddef>
#include <memory>
#include <vector>

#include "platform/printing/PPD.h"
#include "platform/system/PDEObject.h"
#include "platform/system/TextDecoding.h"

/// Wraps a libcups choice record. The record is borrowed: the PPD outlives every PDEChoice made
/// from it. Titles are decoded when first asked for and kept; a title that does not decode stays
/// absent and is tried again. Lists own their records; menu items and selections only point to
/// them.
class PDEChoice : public PDEObject {
 public:
  /// Sets ppdEncoding, once per process, before the first record is made.
  static void initialize();

  /// A new record, counted by whoever keeps it. `choice` must not be null.
  static std::shared_ptr<PDEChoice> choiceWithChoice(ppd_choice_t *choice);

  /// The text users see: the choice's translation, as UTF-8. Null where it is not valid UTF-8 - no
  /// other encoding is tried, since libcups hands out UTF-8.
  QString userTitle() const;

  /// The choice's keyword, as ASCII, whatever the PPD's encoding. Null where it is not ASCII.
  QString ppdTitle() const;

  ppd_choice_t *choice() const { return m_choice; }

  /// Whether this is the PPD's declared default (Default*Keyword*), not whether it is marked.
  bool isDefaultChoice() const;

  /// For log lines: address, titles, mark and one-based place among the option's choices.
  QString description() const override;

 private:
  explicit PDEChoice(ppd_choice_t *choice) : m_choice(choice) {}

  static orvek::TextEncoding ppdEncoding;

  mutable QString m_userTitle;
  mutable QString m_ppdTitle;
  ppd_choice_t *m_choice;
};

/// One record per choice of an option, in the PPD's order. A list is absent (null) exactly when its
/// option is.
using PDEChoiceList = std::vector<std::shared_ptr<PDEChoice>>;

namespace orvek {

/// The null-safe vocabulary of records and lists: absent ones give null, zero or null texts.
QString userTitle(const PDEChoice *record);
QString ppdTitle(const PDEChoice *record);
const PDEChoice *recordAt(const PDEChoiceList *list, std::size_t index);

}  // namespace orvek
