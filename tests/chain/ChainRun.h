// SPDX-License-Identifier: Apache-2.0
// One random job: its documents written, its preview inspected, printed, and the paper looked at.
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "tests/chain/RandomJob.h"

namespace orvek::test {

/// A folder with the printers and the documents of jobs, and nothing of the user's.
class ChainRun {
 public:
  ChainRun();

  /// What differs between the preview and the paper.
  QStringList differencesOf(const RandomJob &job);

  /// How to print the last job again. Where it failed its documents are kept for that.
  QString commandLine() const;

  /// Keeps the last job's documents in a folder of the build tree, for commandLine().
  void keep(unsigned seed);

 private:
  QString ppdOf(const QString &printer) const;
  QStringList writeDocuments(const RandomJob &job) const;

  QTemporaryDir m_folder;
  QStringList m_arguments;
  QStringList m_documents;
};

}  // namespace orvek::test
