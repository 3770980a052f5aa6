# SPDX-License-Identifier: Apache-2.0
#
# Equipment that may be installed. Nothing of it is sent to the printer.

from source.ppd import Choice, Group, Option, Text

NOT_INSTALLED = Text("Not installed", "Nicht installiert", "Non installé", "なし")
INSTALLED = Text("Installed", "Installiert", "Installé", "あり")


def fitted(keyword, text):
    return Option(keyword, text,
                  (Choice("False", NOT_INSTALLED, ""), Choice("True", INSTALLED, "")),
                  default="True", kind="Boolean", order=0)


FINISHER = fitted("OVKOptionFinisher", Text("Finisher", "Finisher", "Finisseur", "フィニッシャー"))
OFFSET_BIN = fitted("OVKOptionOffsetBin",
                    Text("Offset tray", "Versatzfach", "Bac de décalage", "オフセットトレイ"))
PUNCH_UNIT = Option(
    "OVKOptionPunch", Text("Punch unit", "Locheinheit", "Perforatrice", "パンチユニット"),
    (
        Choice("None", NOT_INSTALLED, ""),
        Choice("US_Punch", Text("US (3 holes)", "US (3 Löcher)", "US (3 trous)", "US（3穴）"), ""),
        Choice("Metric_Punch", Text("Metric (2 and 4 holes)", "Metrisch (2 und 4 Löcher)",
                                    "Métrique (2 et 4 trous)", "メートル（2穴・4穴）"), ""),
    ),
    default="Metric_Punch", order=0)
PAPER_TRAYS = Option(
    "OVKOptionTrays", Text("Paper trays", "Papierfächer", "Magasins", "給紙トレイ"),
    (
        Choice("2Trays", Text("2 trays", "2 Fächer", "2 magasins", "2段"), ""),
        Choice("4Trays", Text("4 trays", "4 Fächer", "4 magasins", "4段"), ""),
    ),
    default="4Trays", order=0)


def installable(*options):
    return Group("InstallableOptions",
                 Text("Installed equipment", "Installierte Ausstattung", "Équipements installés",
                      "装着オプション"), options)
