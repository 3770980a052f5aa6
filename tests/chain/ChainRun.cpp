// SPDX-License-Identifier: Apache-2.0
// Runs the program and its filters as a user would.

#include "tests/chain/ChainRun.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "tests/chain/Agreement.h"
#include "tests/chain/CodedPages.h"
#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

const QString kProgram = QStringLiteral("build/bin/orvek-print");

QByteArray bytesOf(const RandomDocument &document) {
  const auto count = static_cast<int>(document.pages.size());
  return QByteArray::fromStdString(document.isPostScript
                                       ? codedPostScript(count, document.pages.front().size)
                                       : documentOf(document.pages, codedPage));
}

QString quoted(const QString &word) {
  static const QString plain = QStringLiteral("=,.-_/");
  for (const QChar sign : word) {
    if (!sign.isLetterOrNumber() && !plain.contains(sign)) return u'\'' + word + u'\'';
  }
  return word;
}

}  // namespace

ChainRun::ChainRun() {
  const auto variants = variantPPDs();
  for (auto ppd = variants.begin(); ppd != variants.end(); ++ppd) {
    writeContents(m_folder.filePath(ppd.key() + QStringLiteral(".ppd")), ppd.value());
  }
}

QString ChainRun::ppdOf(const QString &printer) const {
  const QString variant = m_folder.filePath(printer + QStringLiteral(".ppd"));
  return QFile::exists(variant) ? variant : orvekPPD(printer);
}

QStringList ChainRun::writeDocuments(const RandomJob &job) const {
  QStringList names;
  for (const RandomDocument &document : job.documents) {
    const QString name = QStringLiteral("in%1.%2").arg(names.size() + 1);
    names << m_folder.filePath(name.arg(QLatin1String(document.isPostScript ? "ps" : "pdf")));
    writeContents(names.last(), bytesOf(document));
  }
  return names;
}

QStringList ChainRun::differencesOf(const RandomJob &job) {
  const QString out = m_folder.filePath(QStringLiteral("out.ps"));
  QFile::remove(out);
  m_documents = writeDocuments(job);
  m_arguments =
      QStringList{QStringLiteral("--headless"), QStringLiteral("--ppd"), ppdOf(job.printer)} +
      job.arguments;
  const Surroundings surroundings{{QStringLiteral("HOME=") + m_folder.path()}, {}, {}, true};
  const QStringList inspect = m_arguments + QStringList{QStringLiteral("--inspect")} + m_documents;
  const auto run = runProgram(QStringList{QStringLiteral("--output"), out} + inspect, surroundings);
  QJsonObject preview = run.json()["preview"].toObject();
  // A job that has no pages left prints nothing, and says so.
  if (run.status == 1 && preview.isEmpty()) {
    preview = runProgram(inspect, surroundings).json()["preview"].toObject();
  }
  if (preview.isEmpty()) return {QStringLiteral("no preview: ") + QString::fromUtf8(run.errors)};
  PaperSides paper = paperIn(out);
  paper.documents = static_cast<int>(job.documents.size());
  QStringList found = differences(preview, paper);
  if (!found.isEmpty() && run.status != 0) found << QString::fromUtf8(run.errors);
  return found;
}

void ChainRun::keep(unsigned seed) {
  const QDir folder(QStringLiteral(ORVEK_BINARY_DIR "/chain"));
  folder.mkpath(QStringLiteral("."));
  const auto keepFile = [&](QString &path) {
    const QString kept = folder.filePath(QString::number(seed) + u'-' +
                                         QFileInfo(path).fileName().replace(u' ', u'-'));
    QFile::remove(kept);
    QFile::copy(path, kept);
    path = kept;
  };
  for (QString &document : m_documents) keepFile(document);
  for (QString &argument : m_arguments) {
    if (argument.startsWith(m_folder.path())) keepFile(argument);
  }
}

QString ChainRun::commandLine() const {
  QStringList words{kProgram};
  for (const QString &word : m_arguments + m_documents) words << quoted(word);
  return words.join(u' ');
}

}  // namespace orvek::test
