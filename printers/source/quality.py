# SPDX-License-Identifier: Apache-2.0
#
# Colour and print quality.

from source.ppd import Choice, Option, Text, page_device

OFF = Text("Off", "Aus", "Désactivé", "オフ")
ON = Text("On", "Ein", "Activé", "オン")


def switch(keyword, text, device_key, default="False"):
    """An option that is off or on."""
    return Option(keyword, text,
                  (Choice("False", OFF, page_device(f"/{device_key} false")),
                   Choice("True", ON, page_device(f"/{device_key} true"))),
                  default, kind="Boolean", order=10)


COLOR_MODEL = Option(
    "ColorModel", Text("Color mode", "Farbmodus", "Mode couleur", "カラーモード"),
    (
        Choice("CMYK", Text("Color", "Farbe", "Couleur", "カラー"),
               page_device("/ProcessColorModel/DeviceCMYK")),
        Choice("Gray", Text("Black and white", "Schwarzweiß", "Noir et blanc", "白黒"),
               page_device("/ProcessColorModel/DeviceGray")),
    ),
    default="CMYK", order=10)

RESOLUTION = Option(
    "Resolution", Text("Resolution", "Auflösung", "Résolution", "解像度"),
    (
        Choice("600dpi", Text("600 dpi", "600 dpi", "600 ppp", "600 dpi"),
               page_device("/HWResolution[600 600]")),
        Choice("1200dpi", Text("1200 dpi", "1200 dpi", "1200 ppp", "1200 dpi"),
               page_device("/HWResolution[1200 1200]")),
    ),
    default="600dpi", order=5)

IMAGE_SMOOTHING = switch(
    "OVKImageSmoothing",
    Text("Image smoothing", "Bildglättung", "Lissage des images", "イメージスムージング"),
    "PostRenderingEnhance", default="True")

OV_RASTER = switch(
    "OVKHasOVRaster",
    Text("OV raster acceleration", "OV-Rasterbeschleunigung", "Accélération de trame OV",
         "OVラスター高速化"),
    "OVRaster", default="True")

TONER_SAVING = switch(
    "OVKTonerSaving", Text("Toner saving", "Toner sparen", "Économie de toner", "トナー節約"),
    "TonerSaving")
