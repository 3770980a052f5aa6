// SPDX-License-Identifier: Apache-2.0
// printf-like formats with "%@" for objects, expanded without ever reading an argument that is not
// there.
#pragma once

#include <QString>
#include <cstdarg>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

class PDEObject;

namespace orvek {

/// One argument as a format's directive takes it. `monostate`: none was given.
using FormatArgument =
    std::variant<std::monostate, std::int64_t, std::uint64_t, double, long double, const char *,
                 const wchar_t *, const void *, const PDEObject *>;

/// The arguments of `format`, taken from `arguments` with the types its directives name: those
/// of printf(3) with flags, widths, precisions and lengths, "%@" for a `const PDEObject *`, and
/// "%n", which takes its pointer and never writes. Positional ones ("%1$d") and unknown ones take
/// nothing.
std::vector<FormatArgument> collectArguments(const char *format, std::va_list arguments);

/// `format` (UTF-8) expanded with `arguments` in order. "%@" shows an object's description,
/// "(null)" for an absent one. A directive for which no argument is left, or one of another
/// kind, stays as it is written; so does one that isn't known. Widths and precisions are held to
/// 65535.
QString expandFormat(const std::string &format, const std::vector<FormatArgument> &arguments);

}  // namespace orvek
