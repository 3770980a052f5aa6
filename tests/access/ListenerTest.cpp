// SPDX-License-Identifier: Apache-2.0
// What a screen reader hears of the window.

#include "tests/access/AccessKit.h"

namespace orvek::test {
namespace {

class Listener : public AccessTest {};

TEST_F(Listener, HearsWhatConstraintsChanged) {
  runOnPpd();
  bus->forget();
  step("Folding", "End");
  step("Stapling", "Down");
  EXPECT_TRUE(bus->waitForWords("can't be combined with"))
      << bus->announced().join(u'\n').toStdString() << '\n'
      << whatShows();
  const AccessNode bar = find("notification", nullptr);
  ASSERT_FALSE(bar.isNull()) << whatShows();
  const auto &heard = bus->heard();
  EXPECT_TRUE(std::any_of(heard.begin(), heard.end(), [&](const AccessEvent &event) {
    return event.kind == "showing" && event.source.path == bar.path;
  }));
}

TEST_F(Listener, HearsWhyAJobFailed) {
  output = folder.filePath(QStringLiteral("missing/out.ps"));
  runOnPpd();
  press("push button", "Print");
  EXPECT_TRUE(bus->waitForWords("Problem: ")) << bus->announced().join(u'\n').toStdString();
  EXPECT_TRUE(bus->waitForWords(output));
}

TEST_F(Listener, FindsALabelOnEveryMenuAndWordsOnEveryPicture) {
  runOnPpd();
  for (const char *menu : {"Printer", "Preset", "Stapling", "Folding", "Hole punch"}) {
    EXPECT_FALSE(find("combo box", menu).isNull()) << menu << '\n' << whatShows();
  }
  EXPECT_FALSE(find("graphic", "Preview of the finished sheets").isNull());
  const AccessNode preview = find("graphic", "Preview");
  ASSERT_FALSE(preview.isNull());
  EXPECT_TRUE(bus->description(preview).contains("Sheet 1"))
      << bus->description(preview).toStdString();
}

}  // namespace
}  // namespace orvek::test
