// SPDX-License-Identifier: Apache-2.0
// Draws each setting by itself, with most weight on what people do, and says it in one of the ways
// that there are to say it.

#include "tests/chain/RandomJob.h"

#include <algorithm>

#include "tests/support/CapturingFilter.h"
#include "tests/support/Dice.h"

namespace orvek::test {
namespace {

using imposition::Size;

constexpr int paperChoices = 16;  // of the largest printer, custom paper counted

int pageCount(Dice &dice) {
  switch (dice.below(10)) {
    case 0:
    case 1:
    case 2:
      return dice.from(1, 4);
    case 3:
      return dice.from(13, 24);
    case 4:
      return dice.from(25, 40);
    default:
      return dice.from(5, 12);
  }
}

Size anySize(Dice &dice) {
  return dice.any<Size>({{595, 842},
                         {595, 842},
                         {842, 595},
                         {420, 595},
                         {595, 420},
                         {612, 792},
                         {842, 1191},
                         {300, 300},
                         {700, 500},
                         {200, 600}});
}

MarkedPage anyPage(Dice &dice, Size size) {
  MarkedPage page;
  page.size = size;
  // The standard filters lose the middle of square pages that have a quarter turn of their own.
  if (dice.oneIn(4) && size.width != size.height) page.rotate = dice.any({90, 180, 270});
  if (dice.oneIn(8)) page.around = dice.from(5, 60);
  if (dice.oneIn(4)) page.shownBox = "TrimBox";
  return page;
}

RandomDocument anyDocument(Dice &dice) {
  RandomDocument document;
  const bool isMixed = dice.oneIn(3);
  const bool isPlain = !isMixed && dice.oneIn(2);
  Size size = isPlain ? Size{595, 842} : anySize(dice);
  document.isPostScript = isPlain && dice.oneIn(3);
  for (int left = pageCount(dice); left > 0; --left) {
    if (isMixed) size = anySize(dice);
    document.pages.push_back(isPlain ? MarkedPage{} : anyPage(dice, size));
  }
  return document;
}

void option(RandomJob &job, const QString &text) {
  job.arguments << QStringLiteral("-o") << text;
}

void choosePaper(Dice &dice, RandomJob &job) {
  switch (dice.below(6)) {
    case 0:
    case 1:
      option(job, QStringLiteral("PageSize=") +
                      dice.word({"A4", "A5", "A6", "B5", "Letter", "Legal", "Statement"}));
      break;
    case 2:
      option(job, QStringLiteral("media=") + dice.word({"A4", "A5", "Letter", "iso_a5_148x210mm",
                                                        "na_legal_8.5x14in", "Legal,Tray2"}));
      break;
    case 3:
      if (job.printer.startsWith(u's')) break;
      option(job, QStringLiteral("PageSize=") + dice.word({"A3", "B4", "Tabloid", "A3"}));
      break;
    case 4:
      if (!dice.oneIn(2)) break;
      option(job, dice.word({"PageSize=Custom.400x500", "media=Custom.600x450",
                             "PageSize=Custom.150x200mm", "PageSize=Env10", "media=EnvC5"}));
      break;
    default:
      break;
  }
}

void chooseSides(Dice &dice, RandomJob &job) {
  if (dice.oneIn(2)) return;
  option(job,
         dice.word({"sides=two-sided-long-edge", "sides=two-sided-short-edge", "sides=one-sided",
                    "Duplex=DuplexNoTumble", "Duplex=DuplexTumble", "Duplex=None"}));
}

void chooseOrientation(Dice &dice, RandomJob &job) {
  if (!dice.oneIn(3)) return;
  option(job,
         dice.word({"orientation-requested=3", "orientation-requested=4", "orientation-requested=4",
                    "orientation-requested=5", "orientation-requested=6", "landscape"}));
}

void chooseRange(Dice &dice, RandomJob &job) {
  const int first = dice.from(1, 6);
  const QString from = QString::number(first);
  const QString to = QString::number(first + dice.below(5));
  const QString range =
      dice.any<QString>({from, from + u'-' + to, from + u'-', QStringLiteral("-") + to,
                         QStringLiteral("1,") + to + QStringLiteral("-20")});
  if (dice.oneIn(2)) {
    job.arguments << QStringLiteral("-P") << range;
  } else {
    option(job, QStringLiteral("page-ranges=") + range);
  }
}

void choosePages(Dice &dice, RandomJob &job) {
  // One document of which nothing is left ends a job, whatever else it has.
  if (job.documents.size() > 1) return;
  if (dice.oneIn(4)) chooseRange(dice, job);
  if (dice.oneIn(10)) option(job, dice.word({"page-set=odd", "page-set=even"}));
}

bool hasPostScript(const RandomJob &job) {
  return std::any_of(job.documents.begin(), job.documents.end(),
                     [](const RandomDocument &document) { return document.isPostScript; });
}

void chooseLayout(Dice &dice, RandomJob &job) {
  if (dice.oneIn(3)) {
    const QString pages = dice.word({"2", "2", "2", "4", "4", "6", "9", "16", "3", "8", "10", "1"});
    if (dice.oneIn(4)) {
      job.arguments << QStringLiteral("--do") << QStringLiteral("nup=") + pages;
    } else {
      option(job, QStringLiteral("number-up=") + pages);
    }
    if (dice.oneIn(2)) {
      option(job, QStringLiteral("number-up-layout=") +
                      dice.word({"lrtb", "lrbt", "rltb", "rlbt", "tblr", "tbrl", "btlr", "btrl"}));
    }
  }
}

void chooseScaling(Dice &dice, RandomJob &job) {
  if (!dice.oneIn(4)) return;
  option(job, dice.word({"print-scaling=fit", "print-scaling=fill", "print-scaling=none",
                         "print-scaling=auto", "print-scaling=auto-fit", "fit-to-page", "fitplot",
                         "ipp-attribute-fidelity"}));
}

/// What fewer people know.
void chooseOddity(Dice &dice, RandomJob &job) {
  if (job.printer == QLatin1String("piles face up")) {
    option(job, dice.word({"OutputBin=Standard", "OutputBin=OffsetBin", "output-bin=standard"}));
  }
  if (!dice.oneIn(8)) return;
  option(job, dice.word({"mirror", "position=top-left", "position=bottom", "position=right",
                         "booklet=true", "booklet=shuffle-only", "ovkenablebooklet=true",
                         "Sides=two-sided-long-edge", "OutputOrder=Reverse",
                         "page-delivery=reverse-order", "copies=2"}));
}

void chooseCopies(Dice &dice, RandomJob &job) {
  if (!dice.oneIn(8)) return;
  job.arguments << QStringLiteral("-n") << QString::number(dice.from(2, 3));
  if (dice.oneIn(3)) option(job, dice.word({"Collate=False", "Collate=True", "collate=true"}));
}

/// As with the mouse, on the one printer that folds.
void pickBooklet(Dice &dice, RandomJob &job) {
  QStringList acts{QStringLiteral("foldingPopup=Saddle"), QStringLiteral("bookletChckBox=on")};
  if (dice.oneIn(2)) acts << QStringLiteral("gutterSlider=%1").arg(dice.from(0, 144));
  if (dice.oneIn(2)) acts << QStringLiteral("creepSlider=%1").arg(dice.from(-36, 36));
  if (dice.oneIn(3)) acts << QStringLiteral("rToLChckBox=on");
  if (dice.oneIn(3)) acts << QStringLiteral("pageBroderChckBox=on");
  if (dice.oneIn(3)) acts << QStringLiteral("paperSizePopup=#%1").arg(dice.from(0, 9));
  for (const QString &act : acts) job.arguments << QStringLiteral("--do") << act;
}

void askForBooklet(Dice &dice, RandomJob &job) {
  option(job, dice.word({"OVKEnableBooklet", "OVKEnableBooklet", "OVKEnableBooklet=True",
                         "OVKEnableBooklet=on", "OVKEnableBooklet=yes", "OVKEnableBooklet=1"}));
}

void chooseBooklet(Dice &dice, RandomJob &job) {
  if (!dice.oneIn(2)) return;
  // The panel offers no booklet for several pages per sheet.
  const bool isFree = job.arguments.filter(QStringLiteral("up=")).isEmpty();
  if (isFree && job.printer == QLatin1String("6180") && dice.oneIn(3)) {
    return pickBooklet(dice, job);
  }
  askForBooklet(dice, job);
  if (dice.oneIn(3)) {
    option(job, dice.word({"OVKRightToLeft", "OVKRightToLeft=True", "noOVKRightToLeft"}));
  }
  if (dice.oneIn(2)) {
    option(job, QStringLiteral("OVKGutter=%1").arg(dice.any({0, 10, 36, 72, 144, -5, 300})));
  }
  if (dice.oneIn(2)) {
    option(job, QStringLiteral("OVKCreep=%1").arg(dice.any({-36, -12, -5, 6, 12, 24, 36, 50})));
  }
  if (dice.oneIn(3)) option(job, QStringLiteral("OVKPrintPageBorders"));
  if (dice.oneIn(3)) {
    option(job, QStringLiteral("OVKTargetPaperSize=%1").arg(dice.from(-1, paperChoices + 1)));
  }
}

QString anyPrinter(Dice &dice) {
  return dice.word({"6180", "6180", "6180", "6180", "6180", "6180", "4150", "4150",
                    "small, in colour", "turns right", "last page first", "piles face up"});
}

}  // namespace

RandomJob randomJob(unsigned seed) {
  Dice dice(seed);
  RandomJob job;
  job.printer = anyPrinter(dice);
  job.documents << anyDocument(dice);
  if (dice.oneIn(12)) job.documents << anyDocument(dice);
  if (hasPostScript(job)) {
    job.printer = QStringLiteral("6180");
  } else {
    choosePaper(dice, job);
  }
  chooseOrientation(dice, job);
  chooseSides(dice, job);
  choosePages(dice, job);
  if (dice.oneIn(5)) option(job, QStringLiteral("outputorder=reverse"));
  chooseLayout(dice, job);
  chooseScaling(dice, job);
  chooseCopies(dice, job);
  chooseBooklet(dice, job);
  chooseOddity(dice, job);
  return job;
}

QMap<QString, QByteArray> variantPPDs() {
  const QByteArray ppd = contentsOf(orvekPPD(QStringLiteral("6180")));
  const QByteArray small = contentsOf(orvekPPD(QStringLiteral("2120")));
  return {{QStringLiteral("small, in colour"),
           QByteArray(small)
               .replace("ColorDevice: False", "ColorDevice: True")
               .replace("DefaultColorSpace: Gray", "DefaultColorSpace: RGB")},
          {QStringLiteral("turns right"), QByteArray(ppd).replace("LandscapeOrientation: Plus90",
                                                                  "LandscapeOrientation: Minus90")},
          {QStringLiteral("last page first"),
           QByteArray(ppd).replace("*LandscapeOrientation",
                                   "*DefaultOutputOrder: Reverse\n*LandscapeOrientation")},
          {QStringLiteral("piles face up"),
           QByteArray(ppd).replace("*LandscapeOrientation",
                                   "*PageStackOrder Standard: Reverse\n*LandscapeOrientation")}};
}

}  // namespace orvek::test
