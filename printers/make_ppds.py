#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
#
# Writes the PPD files of the printer family into the folder given (this one by default) from the
# descriptions in source/. Run it again after a change there.

import sys
from pathlib import Path

from source import paper
from source.models import FAMILY
from source.ppd import OTHER_LANGUAGES, Document, Text, applies, write_constraint

CUSTOM_SIZE = Text("Custom", "Benutzerdefiniert", "Personnalisé", "ユーザー定義")
# Name, place on the PostScript stack, text. Offsets and turning are for roll-fed devices: fixed.
CUSTOM_PARAMETERS = (
    ("Width", 1, Text("Width", "Breite", "Largeur", "幅")),
    ("Height", 2, Text("Height", "Höhe", "Hauteur", "高さ")),
    ("WidthOffset", 3, Text("Width offset", "Versatz in der Breite", "Décalage en largeur",
                            "幅オフセット")),
    ("HeightOffset", 4, Text("Height offset", "Versatz in der Höhe", "Décalage en hauteur",
                             "高さオフセット")),
    ("Orientation", 5, Text("Orientation", "Ausrichtung", "Orientation", "向き")),
)
SMALLEST_CUSTOM_SIZE = (279, 397)  # points: the bypass tray's guides

FONTS = (
    "AvantGarde-Book AvantGarde-BookOblique AvantGarde-Demi AvantGarde-DemiOblique Bookman-Demi "
    "Bookman-DemiItalic Bookman-Light Bookman-LightItalic Courier Courier-Bold Courier-BoldOblique "
    "Courier-Oblique Helvetica Helvetica-Bold Helvetica-BoldOblique Helvetica-Narrow "
    "Helvetica-Narrow-Bold Helvetica-Narrow-BoldOblique Helvetica-Narrow-Oblique "
    "Helvetica-Oblique NewCenturySchlbk-Bold NewCenturySchlbk-BoldItalic NewCenturySchlbk-Italic "
    "NewCenturySchlbk-Roman Palatino-Bold Palatino-BoldItalic Palatino-Italic Palatino-Roman Symbol "
    "Times-Bold Times-BoldItalic Times-Italic Times-Roman ZapfChancery-MediumItalic ZapfDingbats"
).split()
FONT_ENCODINGS = {"Symbol": "Special", "ZapfDingbats": "Special"}


def write_identity(document, model):
    document.quoted("PPD-Adobe", "4.3")
    document.comment("SPDX-License-Identifier: Apache-2.0")
    document.comment(f"{model.name}, PostScript. Made by make_ppds.py; change its sources instead.")
    document.quoted("FormatVersion", "4.3")
    document.quoted("FileVersion", "1.0")
    document.value("LanguageVersion", "English")
    # Of the base texts, which are plain ASCII; those of the other languages are UTF-8 by definition.
    document.value("LanguageEncoding", "ISOLatin1")
    document.quoted("cupsLanguages", " ".join(OTHER_LANGUAGES))
    document.quoted("PCFileName", f"ORV{model.number}.PPD")
    document.quoted("Manufacturer", "Orvek")
    document.quoted("Product", f"({model.name})")
    document.quoted("PSVersion", f"(3017.104) {model.number}")
    document.quoted("ModelName", model.name)
    document.quoted("ShortNickName", model.name)
    document.quoted("NickName", f"{model.name} PostScript")
    document.quoted("1284DeviceID",
                    f"MFG:Orvek;MDL:{model.name};CMD:POSTSCRIPT,PJL;CLS:PRINTER;DES:{model.name};")
    document.add()


def write_capabilities(document, model):
    document.quoted("LanguageLevel", "3")
    document.value("ColorDevice", "True" if model.color else "False")
    document.value("DefaultColorSpace", "CMYK" if model.color else "Gray")
    document.value("FileSystem", "True")
    document.quoted("FreeVM", model.memory)
    document.quoted("Throughput", model.pages_per_minute)
    document.value("TTRasterizer", "Type42")
    document.value("LandscapeOrientation", "Plus90")
    document.value("Protocols", "PJL TBCP")
    document.quoted("JCLBegin", "<1B>%-12345X@PJL JOB<0A>")
    document.quoted("JCLToPSInterpreter", "@PJL ENTER LANGUAGE = POSTSCRIPT<0A>")
    document.quoted("JCLEnd", "<1B>%-12345X@PJL EOJ<0A><1B>%-12345X")
    for keyword, value in model.attributes:
        document.quoted(keyword, value)
    document.add()


# What CUPS sends to the printer by which filter: type, its cost, filter. The driver prints PDF and
# PostScript. The other two stand here because CUPS adds them only to a printer that names no filter.
FILTERS = (
    ("application/vnd.cups-pdf", 0, "orvek-booklet"),
    ("application/postscript", 0, "orvek-booklet"),
    ("application/vnd.cups-postscript", 0, "-"),
    ("application/vnd.cups-command", 0, "commandtops"),
)


def write_filters(document):
    for source, cost, program in FILTERS:
        document.quoted("cupsFilter2", f"{source} application/vnd.cups-postscript {cost} {program}")
    document.add()


def write_constraints(document, model):
    options = model.options()
    constraints = [c for c in model.constraints if applies(c, options)]
    for constraint in constraints:
        write_constraint(document, constraint)
    for constraint in constraints:
        if constraint.way_out:
            document.quoted(f"cupsUIResolver {constraint.name}", constraint.way_out)
    document.add()


def write_paper_areas(document, model):
    margin = paper.MARGIN
    document.value("DefaultImageableArea", model.default_paper)
    for size in model.papers:
        area = f"{margin} {margin} {size.width - margin} {size.height - margin}"
        document.quoted(f"ImageableArea {size.keyword}/{size.text.en}", area)
    document.value("DefaultPaperDimension", model.default_paper)
    for size in model.papers:
        document.quoted(f"PaperDimension {size.keyword}/{size.text.en}", f"{size.width} {size.height}")
    document.add()


def write_custom_paper(document, model):
    widest = max(size.width for size in model.papers)
    longest = max(size.height for size in model.papers)
    ranges = {"Width": (SMALLEST_CUSTOM_SIZE[0], widest), "Height": (SMALLEST_CUSTOM_SIZE[1], longest)}
    document.value("VariablePaperSize", "True")
    document.quoted("MaxMediaWidth", widest)
    document.quoted("MaxMediaHeight", longest)
    document.value("HWMargins", " ".join([str(paper.MARGIN)] * 4))
    document.value("NonUIOrderDependency", "30 AnySetup *CustomPageSize")
    document.quoted(f"CustomPageSize True/{CUSTOM_SIZE.en}",
                    "pop pop pop <</PageSize[5 -2 roll]/ImagingBBox null>>setpagedevice")
    for name, place, text in CUSTOM_PARAMETERS:
        least, most = ranges.get(name, (0, 0))
        unit = "int" if name == "Orientation" else "points"
        document.value(f"ParamCustomPageSize {name}/{text.en}", f"{place} {unit} {least} {most}")
    document.add()


def write_fonts(document):
    document.value("DefaultFont", "Courier")
    for font in FONTS:
        encoding = FONT_ENCODINGS.get(font, "Standard")
        document.add(f'*Font {font}: {encoding} "(003.000)" {encoding} ROM')
    document.add()


def write_translations(document, model, language):
    for group in model.groups:
        document.translation(language, group.keyword, group.text)
        for option in group.options:
            document.translation(language, option.keyword, option.text)
            for choice in option.choices:
                document.choice_translation(language, option.keyword, choice.keyword, choice.text)
    document.choice_translation(language, "CustomPageSize", "True", CUSTOM_SIZE)
    for name, _, text in CUSTOM_PARAMETERS:
        document.choice_translation(language, "ParamCustomPageSize", name, text)
    document.add()


def ppd(model):
    document = Document()
    write_identity(document, model)
    write_capabilities(document, model)
    write_filters(document)
    write_constraints(document, model)
    for group in model.groups:
        document.group(group)
    write_paper_areas(document, model)
    write_custom_paper(document, model)
    write_fonts(document)
    for language in OTHER_LANGUAGES:
        write_translations(document, model, language)
    return document.text().rstrip("\n") + "\n"


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent
    for model in FAMILY:
        (folder / f"Orvek-{model.number}.ppd").write_text(ppd(model), encoding="utf-8")


if __name__ == "__main__":
    main()
