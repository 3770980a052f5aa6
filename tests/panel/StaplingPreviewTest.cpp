// SPDX-License-Identifier: Apache-2.0
// Which picture shows for which stapling, folding and model.

#include <QJsonDocument>
#include <QJsonObject>

#include "Common/Utilities.h"
#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class StaplingPreview : public PanelFixture {
 protected:
  void openModel(const char *modelName) {
    open(fullPrinter().modelName(QLatin1String(modelName)));
    show();
  }
  QString shown() const { return imageName(label("imageWindow")); }
  QString listed(const char *table, const char *key) const {
    return bundle->infoDictionary()
        ->value(QLatin1String(table))
        .toObject()
        .value(QLatin1String(key))
        .toString();
  }
};

// Info.json of the copy with `change` made to it.
template <typename Change>
void changeInfo(const BundleCopy &copy, Change change) {
  QJsonObject info = QJsonDocument::fromJson(copy.read(QStringLiteral("Info.json"))).object();
  change(info);
  copy.write(QStringLiteral("Info.json"), QJsonDocument(info).toJson());
}

TEST_F(StaplingPreview, FlippedPositionsHaveEntriesOfTheirOwn) {
  openModel("Orvek 4150");
  pick("staplingPopup", 4);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Front, flipped"));
  pick("staplingPopup", 5);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Rear, flipped"));
  pick("staplingPopup", 6);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Dual, flipped"));
  pick("staplingPopup", 3);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Dual"));
}

TEST_F(StaplingPreview, SaddleWinsOverAnyStapleAndFoldShowsNone) {
  openModel("Orvek 4150");
  pick("staplingPopup", 2);
  pick("foldingPopup", 2);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Saddle"));
  pick("foldingPopup", 1);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "None"));
}

TEST_F(StaplingPreview, UndoingAFoldShowsTheFlatSheetAgain) {
  openModel("Orvek 4150");
  pick("foldingPopup", 2);
  pick("foldingPopup", 0);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "None"));
}

// No pick leaves both a staple and a fold selected; marks that a host made without the panel can.
TEST_F(StaplingPreview, WhereBothAreSelectedTheFoldDecides) {
  openModel("Orvek 4150");
  const auto select = [this](std::size_t staple, std::size_t fold) {
    OrvekFinishingAccess::staplingSelection(*panel) =
        OrvekFinishingAccess::staplingChoices(*panel)->at(staple).get();
    OrvekFinishingAccess::foldingSelection(*panel) =
        OrvekFinishingAccess::foldingChoices(*panel)->at(fold).get();
    panel->updateStaplingImage();
    return shown();
  };
  EXPECT_EQ(select(1, 2), listed("OVStaplingPICTs", "Saddle"));
  EXPECT_EQ(select(1, 1), listed("OVStaplingPICTs", "None"));
  EXPECT_EQ(select(4, 1), listed("OVStaplingPICTs", "None"));
  EXPECT_EQ(select(1, 0), listed("OVStaplingPICTs", "Front"));
}

TEST_F(StaplingPreview, WithoutFoldingTheStapleAloneDecides) {
  open(fullPrinter().without(QStringLiteral("OVKFolding")));
  show();
  pick("staplingPopup", 1);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Front"));
}

TEST_F(StaplingPreview, WithoutFoldingChoicesAFoldThatIsLeftSelectedDoesNotCount) {
  openModel("Orvek 4150");
  const auto choices = std::move(OrvekFinishingAccess::foldingChoices(*panel));
  OrvekFinishingAccess::foldingSelection(*panel) = choices->at(2).get();
  pick("staplingPopup", 1);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Front"));
}

TEST_F(StaplingPreview, WithoutStaplingNoPictureIsSet) {
  open(fullPrinter().without(QStringLiteral("OVKStapling")));
  show();
  pick("foldingPopup", 2);
  EXPECT_TRUE(shown().isNull());
}

TEST_F(StaplingPreview, TheModel6180HasASeriesOfItsOwn) {
  openModel("Orvek 6180dx");
  pick("staplingPopup", 1);
  EXPECT_EQ(shown(), listed("OVStaplingPICTsQuince", "Front"));
  EXPECT_NE(shown(), listed("OVStaplingPICTs", "Front"));
  openModel("Orvek 618");
  pick("staplingPopup", 1);
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "Front"));
}

TEST_F(StaplingPreview, RestoringDoesNotChangeThePicture) {
  ticket->setValue(QStringLiteral("OVKStapling"), QStringLiteral("Front"));
  openModel("Orvek 4150");
  EXPECT_EQ(shown(), listed("OVStaplingPICTs", "None"));
}

TEST_F(StaplingPreview, AKeyThatTheTableLacksFallsBackToNone) {
  const BundleCopy copy;
  changeInfo(copy, [](QJsonObject &info) {
    info[QStringLiteral("OVStaplingPICTs")] =
        QJsonObject{{QStringLiteral("None"), QStringLiteral("Stapling_None.png")}};
  });
  bundle = copy.open();
  openModel("Orvek 4150");
  pick("staplingPopup", 1);
  EXPECT_EQ(shown(), QStringLiteral("Stapling_None.png"));
}

TEST_F(StaplingPreview, ATableWithoutKeyAndNoneLeavesThePicture) {
  const BundleCopy copy;
  const QString front = listed("OVStaplingPICTs", "Front");
  changeInfo(copy, [&](QJsonObject &info) {
    info[QStringLiteral("OVStaplingPICTs")] = QJsonObject{{QStringLiteral("Front"), front}};
  });
  bundle = copy.open();
  openModel("Orvek 4150");
  EXPECT_TRUE(shown().isNull());
  pick("staplingPopup", 1);
  EXPECT_EQ(shown(), front);
  pick("staplingPopup", 2);
  EXPECT_EQ(shown(), front);
}

TEST_F(StaplingPreview, WithoutDictionaryOrTableTheFallBackPictureShows) {
  for (const bool wholeDictionary : {true, false}) {
    const BundleCopy copy;
    if (wholeDictionary) {
      copy.remove(QStringLiteral("Info.json"));
    } else {
      changeInfo(copy, [](QJsonObject &info) { info.remove(QStringLiteral("OVStaplingPICTs")); });
    }
    bundle = copy.open();
    openModel("Orvek 4150");
    pick("staplingPopup", 1);
    EXPECT_EQ(shown(), QStringLiteral("Stapling_None.png"));
  }
}

TEST_F(StaplingPreview, AMissingPictureLeavesTheViewEmpty) {
  const BundleCopy copy;
  copy.remove(listed("OVStaplingPICTs", "Front"));
  bundle = copy.open();
  openModel("Orvek 4150");
  pick("staplingPopup", 1);
  EXPECT_TRUE(shown().isNull());
  EXPECT_TRUE(label("imageWindow")->pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(StaplingPreview, TheModelNumberIsReadOnceTheMenusAreFilled) {
  create(openPPD(fullPrinter().modelName(QStringLiteral("Orvek 6180"))));
  EXPECT_TRUE(panel->inspectedModelNumber().isNull());
  panel->panelView();
  EXPECT_EQ(panel->inspectedModelNumber(), QStringLiteral("6180"));
}

}  // namespace
