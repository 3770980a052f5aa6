# SPDX-License-Identifier: Apache-2.0
#
# What can't be combined, for the whole family; a printer gets those whose options and choices it has.

from source.paper import ENVELOPES, SPECIAL_MEDIA
from source.ppd import Constraint

PAPERS_TOO_SMALL_TO_FINISH = ("A5", "A6", "Statement", "Postcard", *ENVELOPES)
PAPERS_TOO_SMALL_TO_FOLD = (*PAPERS_TOO_SMALL_TO_FINISH, "B5", "Executive")
# The unit's outer holes would miss these papers, or hit their very edge.
PAPERS_WITHOUT_HOLES = {
    "3Hole": ("B4", "B5", "Legal", "Executive"),
    "4Hole": ("B5", "Legal", "Executive"),
}


def pair(option, choice, other_option, other_choice=None):
    return Constraint(((option, choice), (other_option, other_choice)))


def equipment():
    yield pair("OVKOptionFinisher", "False", "OVKStapling")
    yield pair("OVKOptionFinisher", "False", "OVKFolding")
    yield pair("OVKOptionFinisher", "False", "OVKPunching")
    yield pair("OVKOptionFinisher", "False", "OutputBin", "Finisher")
    yield pair("OVKOptionFinisher", "False", "OutputBin", "Booklet")
    yield pair("OVKOptionOffsetBin", "False", "OutputBin", "OffsetBin")
    yield pair("OVKOptionPunch", "None", "OVKPunching")
    yield pair("OVKOptionPunch", "US_Punch", "OVKPunching", "2Hole")
    yield pair("OVKOptionPunch", "US_Punch", "OVKPunching", "4Hole")
    yield pair("OVKOptionPunch", "Metric_Punch", "OVKPunching", "3Hole")
    yield pair("OVKOptionTrays", "2Trays", "InputSlot", "Tray3")
    yield pair("OVKOptionTrays", "2Trays", "InputSlot", "Tray4")


def finishing():
    for fold in ("Fold", "Saddle"):
        yield pair("OVKFolding", fold, "OVKStapling")
    # A folded spine leaves no edge to punch.
    yield pair("OVKFolding", "Saddle", "OVKPunching")


def trays():
    for tray in ("Standard", "OffsetBin", "Booklet"):
        yield pair("OutputBin", tray, "OVKStapling")
        yield pair("OutputBin", tray, "OVKPunching")
    for tray in ("Standard", "OffsetBin"):
        yield pair("OutputBin", tray, "OVKFolding")
    yield pair("OutputBin", "Finisher", "OVKFolding", "Saddle")
    for tray in ("Standard", "Booklet"):
        yield pair("OutputBin", tray, "OVKJog", "True")
    yield pair("OVKFolding", "Saddle", "OVKJog", "True")


def paper():
    for size in PAPERS_TOO_SMALL_TO_FINISH:
        yield pair("PageSize", size, "OVKStapling")
        yield pair("PageSize", size, "OVKPunching")
    for size in PAPERS_TOO_SMALL_TO_FOLD:
        yield pair("PageSize", size, "OVKFolding")
    for holes, sizes in PAPERS_WITHOUT_HOLES.items():
        for size in sizes:
            yield pair("PageSize", size, "OVKPunching", holes)
    for size in ENVELOPES:
        yield pair("PageSize", size, "Duplex")
    for option in ("OVKStapling", "OVKFolding", "OVKPunching"):
        yield pair("CustomPageSize", "True", option)


def media():
    for kind in SPECIAL_MEDIA:
        for option in ("Duplex", "OVKStapling", "OVKFolding", "OVKPunching"):
            yield pair("MediaType", kind, option)
    yield pair("MediaType", "Prepunched", "OVKPunching")


# Sets are offset by the finisher or by the offset tray: one of the two must be there. A printer that
# takes no finisher needs the tray.
OFFSETTING = (
    Constraint((("OVKJog", "True"), ("OVKOptionFinisher", "False"), ("OVKOptionOffsetBin", "False")),
               name="OffsetEquipment", way_out="*OVKJog False"),
)
OFFSETTING_WITHOUT_FINISHER = (pair("OVKOptionOffsetBin", "False", "OVKJog", "True"),)

FAMILY = (*equipment(), *finishing(), *trays(), *paper(), *media(), *OFFSETTING)
