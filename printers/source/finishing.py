# SPDX-License-Identifier: Apache-2.0
#
# What the finishers do to a printed set, and where it goes. The order of choices matters to drivers:
# "None" comes first in stapling and folding, off comes before on in offsetting, and in punching the
# second and fourth choices need the metric unit, the third the US unit.

from source.ppd import Choice, Option, Text, page_device
from source.quality import OFF, ON


def stapling(keyword, text, location):
    return Choice(keyword, text,
                  page_device(f"/Staple 3/StapleDetails<</Type 1/StapleLocation({location})>>"))


STAPLING = Option(
    "OVKStapling", Text("Stapling", "Heftung", "Agrafage", "ステープル"),
    (
        Choice("None", OFF, page_device("/Staple 0")),
        stapling("Front", Text("One staple, front", "Eine Klammer vorn", "Une agrafe, avant",
                               "1か所（手前）"), "SingleFront"),
        stapling("Rear", Text("One staple, rear", "Eine Klammer hinten", "Une agrafe, arrière",
                              "1か所（奥）"), "SingleRear"),
        stapling("Dual", Text("Two staples", "Zwei Klammern", "Deux agrafes", "2か所"), "Dual"),
        stapling("FrontFlip", Text("One staple, front, flipped", "Eine Klammer vorn, gedreht",
                                   "Une agrafe, avant, pivotée", "1か所（手前・反転）"),
                 "SingleFrontFlipped"),
        stapling("RearFlip", Text("One staple, rear, flipped", "Eine Klammer hinten, gedreht",
                                  "Une agrafe, arrière, pivotée", "1か所（奥・反転）"),
                 "SingleRearFlipped"),
        stapling("DualFlip", Text("Two staples, flipped", "Zwei Klammern, gedreht",
                                  "Deux agrafes, pivotées", "2か所（反転）"), "DualFlipped"),
    ),
    default="None", order=90)

FLIPPED_STAPLING = ("FrontFlip", "RearFlip", "DualFlip")

FOLDING = Option(
    "OVKFolding", Text("Folding", "Falzung", "Pliage", "折り"),
    (
        Choice("None", OFF, page_device("/Fold 0/Booklet false")),
        Choice("Fold", Text("Single fold", "Einfachfalz", "Pli simple", "二つ折り"),
               page_device("/Booklet false/Fold 3")),
        Choice("Saddle", Text("Saddle fold", "Sattelfalz", "Pli à cheval", "中とじ折り"),
               page_device("/Fold 0/Booklet true")),
    ),
    default="None", order=91)


def punching(keyword, text, holes):
    return Choice(keyword, text, page_device(f"/Punch 3/PunchDetails<</Type 1/HoleCount {holes}>>"))


PUNCHING = Option(
    "OVKPunching", Text("Hole punch", "Lochung", "Perforation", "パンチ"),
    (
        Choice("None", OFF, page_device("/Punch 0")),
        punching("2Hole", Text("2 holes (metric)", "2 Löcher (metrisch)", "2 trous (métrique)",
                               "2穴（メートル）"), 2),
        punching("3Hole", Text("3 holes (US)", "3 Löcher (US)", "3 trous (US)", "3穴（US）"), 3),
        punching("4Hole", Text("4 holes (metric)", "4 Löcher (metrisch)", "4 trous (métrique)",
                               "4穴（メートル）"), 4),
    ),
    default="None", order=92)

OUTPUT_BIN = Option(
    "OutputBin", Text("Output tray", "Ausgabefach", "Bac de sortie", "排紙先"),
    (
        Choice("Auto", Text("Automatic", "Automatisch", "Automatique", "自動"),
               page_device("/OutputType null")),
        Choice("Standard", Text("Standard tray", "Standardfach", "Bac standard", "標準トレイ"),
               page_device("/OutputType(Standard)")),
        Choice("OffsetBin", Text("Offset tray", "Versatzfach", "Bac de décalage", "オフセットトレイ"),
               page_device("/OutputType(OffsetBin)")),
        Choice("Finisher", Text("Finisher tray", "Finisherfach", "Bac du finisseur",
                                "フィニッシャートレイ"),
               page_device("/OutputType(Finisher)")),
        Choice("Booklet", Text("Booklet tray", "Broschürenfach", "Bac à livrets", "小冊子トレイ"),
               page_device("/OutputType(Booklet)")),
    ),
    default="Auto", order=93)

JOG = Option(
    "OVKJog", Text("Offset collated sets", "Sätze versetzt ablegen", "Décaler les jeux assemblés",
                   "部ごとにずらして排紙"),
    (
        Choice("False", OFF, page_device("/Jog 0")),
        Choice("True", ON, page_device("/Jog 3")),
    ),
    default="False", kind="Boolean", order=94)
