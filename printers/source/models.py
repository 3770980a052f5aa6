# SPDX-License-Identifier: Apache-2.0
#
# The printers of the family, each as what it is made of.

from dataclasses import dataclass

from source import constraints, equipment, finishing, paper, quality
from source.ppd import Group, Text

GENERAL = Text("General", "Allgemein", "Général", "基本設定")
FINISHING = Text("Finishing", "Endverarbeitung", "Finition", "仕上げ")
QUALITY = Text("Print quality", "Druckqualität", "Qualité d'impression", "印刷品質")


@dataclass(frozen=True)
class Model:
    number: int
    papers: tuple
    default_paper: str
    groups: tuple
    constraints: tuple
    color: bool
    pages_per_minute: int
    memory: int  # bytes free for PostScript jobs
    attributes: tuple = ()

    @property
    def name(self):
        return f"Orvek {self.number}"

    def options(self):
        return {option.keyword: option for group in self.groups for option in group.options}


def general(papers, default_paper, input_slot):
    return Group("OVKGeneral", GENERAL, (
        paper.page_size(papers, default_paper), paper.page_region(papers, default_paper), input_slot,
        paper.MEDIA_TYPE, paper.DUPLEX, paper.COLLATE))


def large_office_printer():
    return Model(
        6180, paper.PAPERS, "A4",
        (
            general(paper.PAPERS, "A4", paper.INPUT_SLOT),
            Group("OVKFinishing", FINISHING,
                  (finishing.STAPLING, finishing.FOLDING, finishing.PUNCHING, finishing.OUTPUT_BIN,
                   finishing.JOG)),
            Group("OVKQuality", QUALITY,
                  (quality.COLOR_MODEL, quality.RESOLUTION, quality.IMAGE_SMOOTHING,
                   quality.TONER_SAVING)),
            equipment.installable(equipment.FINISHER, equipment.OFFSET_BIN, equipment.PUNCH_UNIT,
                                  equipment.PAPER_TRAYS),
        ),
        constraints.FAMILY, color=True, pages_per_minute=60, memory=536870912,
        attributes=(("OVKHasBooklet", "True"), ("OVKBookletMaximumSheets", "15")))


def workgroup_printer():
    return Model(
        4150, paper.PAPERS, "Letter",
        (
            general(paper.PAPERS, "Letter", paper.INPUT_SLOT),
            Group("OVKFinishing", FINISHING,
                  (finishing.STAPLING.without(*finishing.FLIPPED_STAPLING), finishing.PUNCHING,
                   finishing.OUTPUT_BIN.without("Booklet"), finishing.JOG)),
            Group("OVKQuality", QUALITY,
                  (quality.COLOR_MODEL, quality.RESOLUTION, quality.IMAGE_SMOOTHING,
                   quality.OV_RASTER, quality.TONER_SAVING)),
            equipment.installable(equipment.FINISHER, equipment.OFFSET_BIN.with_default("False"),
                                  equipment.PUNCH_UNIT.with_default("US_Punch"),
                                  equipment.PAPER_TRAYS.with_default("2Trays")),
        ),
        constraints.FAMILY, color=True, pages_per_minute=40, memory=268435456)


def desk_printer():
    papers = tuple(p for p in paper.PAPERS if p.keyword not in paper.LARGE_PAPERS)
    return Model(
        2120, papers, "A4",
        (
            general(papers, "A4", paper.INPUT_SLOT.without("Tray3", "Tray4")),
            Group("OVKFinishing", FINISHING,
                  (finishing.OUTPUT_BIN.without("Finisher", "Booklet"), finishing.JOG)),
            Group("OVKQuality", QUALITY,
                  (quality.RESOLUTION, quality.OV_RASTER, quality.TONER_SAVING)),
            equipment.installable(equipment.OFFSET_BIN),
        ),
        (*constraints.FAMILY, *constraints.OFFSETTING_WITHOUT_FINISHER),
        color=False, pages_per_minute=28, memory=134217728)


FAMILY = (large_office_printer(), workgroup_printer(), desk_printer())
