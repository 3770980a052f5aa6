// SPDX-License-Identifier: Apache-2.0
// How names of PPD files and of CUPS compare: without regard to case, in one vocabulary.
#pragma once

#include <QAnyStringView>
#include <QList>
#include <QString>
#include <algorithm>
#include <initializer_list>

namespace orvek {

/// A PPD option's main keyword and the keyword of one of its choices (null: none). Plain data.
struct OptionChoice {
  QString option;
  QString choice;

  bool operator==(const OptionChoice &) const = default;
};

/// Texts of one name. Bytes count as UTF-8; null and empty are the same name.
inline bool sameKeyword(QAnyStringView one, QAnyStringView other) {
  return QAnyStringView::compare(one, other, Qt::CaseInsensitive) == 0;
}

inline bool isAnyOf(QAnyStringView keyword, std::initializer_list<QAnyStringView> names) {
  return std::any_of(names.begin(), names.end(),
                     [&](QAnyStringView name) { return sameKeyword(keyword, name); });
}

/// Whether one of the choices is the option's.
inline bool isNamedAmong(const QList<OptionChoice> &choices, const QString &option) {
  return std::any_of(choices.begin(), choices.end(), [&](const OptionChoice &choice) {
    return sameKeyword(choice.option, option);
  });
}

}  // namespace orvek
