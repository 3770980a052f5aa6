// SPDX-License-Identifier: Apache-2.0
// libqpdf. The one door to its main headers, to be included before any other of them: they include
// one of JSON that clang 14 can't compile as C++20, and that nothing here needs.
#pragma once

#define JSON_HH
class JSON;

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
