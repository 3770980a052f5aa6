// SPDX-License-Identifier: Apache-2.0
// Runs the opener within bounds. A password goes by a file: command lines are everybody's to read.

#include "host/jobs/PdfOpener.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include "host/jobs/BoundedTool.h"
#include "host/jobs/OpenerCall.h"
#include "platform/system/SocketProgram.h"

namespace orvek {
namespace {

using namespace std::chrono_literals;

// It bounds its memory by itself.
constexpr ToolLimits limits{20s, 1 << 10, 0};

QString openerPath() {
  return QDir::cleanPath(QFile::decodeName(helperProgram("orvek-pdf-opener").c_str()));
}

Result<QByteArray> askOpener(const QStringList &arguments, const std::atomic<bool> &cancelled) {
  const auto answer = runTool(openerPath(), arguments, limits, cancelled);
  if (!answer) return answer;
  return answer.value().trimmed();
}

int pagesIn(const QByteArray &answer) {
  const QByteArray word = QByteArray(opener::pagesWord) + ' ';
  return answer.startsWith(word) ? answer.mid(word.size()).toInt() : 0;
}

}  // namespace

PdfFindings lookAtPdf(const QString &pdf, const std::atomic<bool> &cancelled) {
  const auto answer = askOpener({QFileInfo(pdf).absoluteFilePath()}, cancelled);
  if (!answer) return {};
  const QByteArray &word = answer.value();
  if (word == opener::lockedWord) return {DocumentState::Locked};
  if (word == opener::damagedWord) return {DocumentState::Damaged};
  if (word == opener::noPagesWord) return {DocumentState::NoPages};
  return {DocumentState::Usable, pagesIn(word)};
}

Result<std::shared_ptr<ScratchFile>> openedPdf(const QString &pdf, const QString &password,
                                               const std::atomic<bool> &cancelled) {
  auto passwords = ScratchFile::with(password.toUtf8());
  if (!passwords) return passwords.failure();
  auto copy = ScratchFile::create(QStringLiteral(".pdf"));
  if (!copy) return copy.failure();
  const auto answer = askOpener(
      {QFileInfo(pdf).absoluteFilePath(), passwords.value()->path(), copy.value()->path()},
      cancelled);
  if (!answer) return answer.failure();
  if (answer.value() == opener::lockedWord) return std::shared_ptr<ScratchFile>();
  if (pagesIn(answer.value()) > 0) return std::shared_ptr<ScratchFile>(copy.take());
  const bool isUnwritten = answer.value() == opener::unwrittenWord;
  return Failure{
      FailureKind::Io, pdf,
      isUnwritten
          ? Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                     "a copy that the filters can open can't be written; make "
                                     "room for temporary files"))
          : Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is damaged beyond repair"))};
}

}  // namespace orvek
