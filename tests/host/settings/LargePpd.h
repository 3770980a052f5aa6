// SPDX-License-Identifier: Apache-2.0
// A PPD with as many options as a test wants.
#pragma once

#include "tests/support/WrittenPpd.h"

namespace orvek::test {

/// The file vanishes with the object.
class LargePpd : public WrittenPpd {
 public:
  explicit LargePpd(int options, int optionsInAGroup = 100)
      : WrittenPpd(text(options, optionsInAGroup)) {}

 private:
  static QByteArray text(int options, int optionsInAGroup) {
    QByteArray lines = ppdHead("Large");
    for (int i = 0; i < options; ++i) {
      if (i % optionsInAGroup == 0) lines += group(i / optionsInAGroup, i > 0);
      lines += numberedOption(i, "One", {{"One", "First"}, {"Two", "Second"}, {"Three", "Third"}});
    }
    return lines + "*CloseGroup: Group" + QByteArray::number((options - 1) / optionsInAGroup) +
           "\n";
  }

  static QByteArray group(int number, bool closeLast) {
    const QByteArray name = "Group" + QByteArray::number(number);
    const QByteArray last = "*CloseGroup: Group" + QByteArray::number(number - 1) + "\n";
    return (closeLast ? last : QByteArray()) + "*OpenGroup: " + name + "/Group " +
           QByteArray::number(number) + "\n";
  }
};

}  // namespace orvek::test
