# SPDX-License-Identifier: Apache-2.0
#
# Paper: sizes, where it comes from, what it is made of, and its two sides.

from source.ppd import Choice, Option, Paper, Text, page_device

MARGIN = 12  # points on every edge that the engine can't reach


def same(text):
    return Text(text, text, text, text)


PAPERS = (
    Paper("A3", same("A3"), 842, 1191),
    Paper("A4", same("A4"), 595, 842),
    Paper("A5", same("A5"), 420, 595),
    Paper("A6", same("A6"), 297, 420),
    Paper("B4", same("B4 (JIS)"), 729, 1032),
    Paper("B5", same("B5 (JIS)"), 516, 729),
    Paper("Letter", Text("US Letter", "US-Letter", "US Letter", "レター"), 612, 792),
    Paper("Legal", Text("US Legal", "US-Legal", "US Legal", "リーガル"), 612, 1008),
    Paper("Tabloid", Text("Tabloid (11 x 17 in)", "Tabloid (11 x 17 Zoll)", "Tabloïd (11 x 17 po)",
                          "タブロイド (11 x 17 インチ)"), 792, 1224),
    Paper("Statement", Text("Statement", "US-Statement", "US Statement", "ステートメント"), 396, 612),
    Paper("Executive", Text("Executive", "US-Executive", "US Executive", "エグゼクティブ"), 522, 756),
    Paper("Postcard", Text("Postcard (JIS)", "Postkarte (JIS)", "Carte postale (JIS)", "郵便はがき"),
          284, 419),
    Paper("Env10", Text("Envelope No. 10", "Umschlag Nr. 10", "Enveloppe nº 10", "封筒 10号"), 297, 684),
    Paper("EnvDL", Text("Envelope DL", "Umschlag DL", "Enveloppe DL", "封筒 DL"), 312, 624),
    Paper("EnvC5", Text("Envelope C5", "Umschlag C5", "Enveloppe C5", "封筒 C5"), 459, 649),
)

ENVELOPES = ("Env10", "EnvDL", "EnvC5")
LARGE_PAPERS = ("A3", "B4", "Tabloid")


def paper_option(keyword, text, papers, default, order):
    choices = tuple(Choice(paper.keyword, paper.text,
                           page_device(f"/PageSize[{paper.width} {paper.height}]/ImagingBBox null"))
                    for paper in papers)
    return Option(keyword, text, choices, default, order=order)


def page_size(papers, default):
    text = Text("Paper size", "Papierformat", "Format du papier", "用紙サイズ")
    return paper_option("PageSize", text, papers, default, order=30)


def page_region(papers, default):
    text = Text("Paper size for manual feed", "Papierformat bei manueller Zufuhr",
                "Format du papier en alimentation manuelle", "用紙サイズ（手差し）")
    return paper_option("PageRegion", text, papers, default, order=40)


def tray(number):
    text = Text(f"Tray {number}", f"Fach {number}", f"Magasin {number}", f"トレイ{number}")
    return Choice(f"Tray{number}", text,
                  page_device(f"/ManualFeed false/TraySwitch false/MediaPosition {number}"))


INPUT_SLOT = Option(
    "InputSlot", Text("Paper source", "Papierquelle", "Source du papier", "給紙方法"),
    (
        Choice("Auto", Text("Automatic", "Automatisch", "Automatique", "自動"),
               page_device("/ManualFeed false/TraySwitch true/MediaPosition null")),
        *(tray(number) for number in (1, 2, 3, 4)),
        Choice("Bypass", Text("Bypass tray", "Zusatzzufuhr", "Départ manuel", "手差しトレイ"),
               page_device("/TraySwitch false/ManualFeed true")),
    ),
    default="Auto", order=50)


def media(keyword, text):
    return Choice(keyword, text, page_device(f"/MediaType({keyword})"))


MEDIA_TYPE = Option(
    "MediaType", Text("Paper type", "Papierart", "Type de papier", "用紙種類"),
    (
        media("Plain", Text("Plain", "Normalpapier", "Ordinaire", "普通紙")),
        media("Recycled", Text("Recycled", "Recyclingpapier", "Recyclé", "再生紙")),
        media("Letterhead", Text("Letterhead", "Briefkopf", "En-tête", "レターヘッド")),
        media("Prepunched", Text("Prepunched", "Vorgelocht", "Perforé", "穴あき紙")),
        media("Heavy", Text("Heavy", "Schweres Papier", "Épais", "厚紙")),
        media("Coated", Text("Coated", "Gestrichen", "Couché", "コート紙")),
        media("Labels", Text("Labels", "Etiketten", "Étiquettes", "ラベル紙")),
        media("Transparency", Text("Transparencies", "Folien", "Transparents", "OHPフィルム")),
        media("Envelope", Text("Envelopes", "Umschläge", "Enveloppes", "封筒")),
    ),
    default="Plain", order=60)

SPECIAL_MEDIA = ("Labels", "Transparency", "Envelope")

DUPLEX = Option(
    "Duplex", Text("Two-sided printing", "Beidseitiger Druck", "Impression recto verso", "両面印刷"),
    (
        Choice("None", Text("Off", "Aus", "Désactivée", "しない"), page_device("/Duplex false")),
        Choice("DuplexNoTumble", Text("Long-edge binding", "Bindung an der langen Seite",
                                      "Reliure sur le grand côté", "長辺とじ"),
               page_device("/Duplex true/Tumble false")),
        Choice("DuplexTumble", Text("Short-edge binding", "Bindung an der kurzen Seite",
                                    "Reliure sur le petit côté", "短辺とじ"),
               page_device("/Duplex true/Tumble true")),
    ),
    default="None", order=70)

COLLATE = Option(
    "Collate", Text("Collate copies", "Kopien sortieren", "Assembler les copies", "部単位で印刷"),
    (
        Choice("False", Text("Off", "Aus", "Non", "しない"), page_device("/Collate false")),
        Choice("True", Text("On", "Ein", "Oui", "する"), page_device("/Collate true")),
    ),
    default="True", kind="Boolean", order=80)
