// SPDX-License-Identifier: Apache-2.0
// What tests share that compare a model of a standard filter with the filter itself.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "imposition/FilterLayout.h"
#include "tests/support/NumberedPages.h"

namespace orvek::imposition {

/// Random jobs go by numbers: ORVEK_SEED is the first, ORVEK_JOBS how many there are.
unsigned firstSeed();
unsigned numberOfJobs(unsigned usual);

/// Runs a program as CUPS runs filters of the family's PPD for a document of this type; an empty
/// `output` drops what it writes.
void runFilter(const QString &program, const QStringList &arguments, const QString &output,
               const char *documentType);

/// The arguments of a filter for a job with these options.
QStringList filterArguments(const QStringList &options, const QString &file);

/// Compares what is seen of each page with what the model says: places within 2 points, turns where
/// the whole page is seen. Pages of which nothing is seen are no part of it.
void expectPages(const test::FoundSide &found, std::vector<PlacedPage> expected);

}  // namespace orvek::imposition
