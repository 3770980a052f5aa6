// SPDX-License-Identifier: Apache-2.0
// A PPD whose options all exclude each other: where one of them is on, every other must be off.
#pragma once

#include "tests/support/WrittenPpd.h"

namespace orvek::test {

/// The options are called Option0, Option1 ...; each is Off or On. The file vanishes with the
/// object.
class ExclusivePpd : public WrittenPpd {
 public:
  enum class Form { UIConstraints, CupsUIConstraints };

  explicit ExclusivePpd(int options, Form form = Form::UIConstraints, const char *standard = "Off")
      : WrittenPpd(text(options, form, standard)) {}

 private:
  static QByteArray text(int options, Form form, const char *standard) {
    QByteArray lines = ppdHead("One");
    for (int i = 0; i < options; ++i) {
      lines += numberedOption(i, standard, {{"Off", "Off"}, {"On", "On"}});
    }
    for (int i = 0; i < options; ++i) {
      for (int j = 0; j < i; ++j) lines += constraint(j, i, form);
    }
    return lines;
  }

  static QByteArray constraint(int one, int other, Form form) {
    const QByteArray first = "*Option" + QByteArray::number(one) + " On";
    const QByteArray second = "*Option" + QByteArray::number(other) + " On";
    if (form == Form::CupsUIConstraints) {
      return "*cupsUIConstraints: \"" + first + " " + second + "\"\n";
    }
    return "*UIConstraints: " + first + " " + second + "\n*UIConstraints: " + second + " " + first +
           "\n";
  }
};

}  // namespace orvek::test
