// SPDX-License-Identifier: Apache-2.0
// A page as something that can be drawn on another. Exceptions of libqpdf pass through.
#pragma once

#include <map>
#include <string>

#include "driver/Qpdf.h"
#include "imposition/Geometry.h"

namespace orvek::driver {

struct PageForm {
  /// A form XObject; null for a page without contents.
  QPDFObjectHandle form;
  /// As the page is displayed, turned where it says so.
  imposition::Size size;
  /// From the form's space to the displayed page, lower left at 0, 0.
  QPDFMatrix toDisplayed;

  bool hasContents() const { return QPDFObjectHandle(form).isStream(); }
};

/// The forms made so far, by what they are made of: pages that share their contents share a form.
using FormsMade = std::map<std::string, QPDFObjectHandle>;

/// The page's visible part is its crop box, as far as that lies in the media box. A page whose
/// boxes have no usable size counts as one of `paper`'s size. Contents in one stream are not copied
/// and stay compressed as they are.
PageForm formOf(const QPDFPageObjectHelper &page, imposition::Size paper, FormsMade *made);

/// Turns, clockwise by 0, 90, 180 or 270 degrees, a box with its lower left corner at 0, 0, such
/// that the corner of the turned box comes to lie there again. `size` is that of the box unturned.
QPDFMatrix turned(int degrees, imposition::Size size);

/// A page's /Rotate as 0, 90, 180 or 270; 0 for what is none of them.
int turnOf(QPDFPageObjectHelper page);

}  // namespace orvek::driver
