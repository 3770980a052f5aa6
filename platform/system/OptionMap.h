// SPDX-License-Identifier: Apache-2.0
// Options by name, as the print system reads names: without regard to case.
#pragma once

#include <QAnyStringView>
#include <QMap>
#include <QString>
#include <optional>

namespace orvek {

/// The value of an option whose name may be written in letters of either case; nothing where there
/// is none. Of several spellings of one name the last counts: options are handed on in this order,
/// and each takes the place of the one before.
template <typename Value>
std::optional<Value> valueNamed(const QMap<QString, Value> &options, QAnyStringView name) {
  std::optional<Value> found;
  for (auto option = options.cbegin(); option != options.cend(); ++option) {
    if (QAnyStringView::compare(option.key(), name, Qt::CaseInsensitive) == 0) {
      found = option.value();
    }
  }
  return found;
}

/// Takes an option out, in whatever spellings of its name it stands there.
template <typename Value>
void removeNamed(QMap<QString, Value> *options, QAnyStringView name) {
  options->removeIf([name](const auto &option) {
    return QAnyStringView::compare(option.key(), name, Qt::CaseInsensitive) == 0;
  });
}

}  // namespace orvek
