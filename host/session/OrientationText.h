// SPDX-License-Identifier: Apache-2.0
// What the ways to lay pages on paper are called, wherever they are named.
#pragma once

#include <QString>
#include <array>

#include "host/ticket/JobSettings.h"

namespace orvek {

/// As a list of them shows them.
inline constexpr std::array orientations{Orientation::Automatic, Orientation::Portrait,
                                         Orientation::Landscape, Orientation::ReversePortrait,
                                         Orientation::ReverseLandscape};

/// In the language of the thread's application.
QString orientationText(Orientation orientation);

}  // namespace orvek
