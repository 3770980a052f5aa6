// SPDX-License-Identifier: Apache-2.0
// Looks sentences up in the catalogue, where they stand under "orvek::Failure".

#include "host/translations/FailureText.h"

#include <QByteArray>
#include <QCoreApplication>
#include <array>

#include "host/translations/Advice.h"

namespace orvek {
namespace {

constexpr const char *context = "orvek::Failure";

// Sentences that no source of ours says as such: cancelledFailure's, and the system's own words for
// what goes wrong with files and connections.
[[maybe_unused]] constexpr std::array sentencesFromElsewhere{
    QT_TRANSLATE_NOOP("orvek::Failure", "cancelled"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Bad file descriptor"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Broken pipe"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Connection refused"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Connection reset by peer"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Connection timed out"),
    QT_TRANSLATE_NOOP("orvek::Failure", "File too large"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Input/output error"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Is a directory"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Network is unreachable"),
    QT_TRANSLATE_NOOP("orvek::Failure", "No route to host"),
    QT_TRANSLATE_NOOP("orvek::Failure", "No space left on device"),
    QT_TRANSLATE_NOOP("orvek::Failure", "No such file or directory"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Not a directory"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Operation now in progress"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Operation not permitted"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Permission denied"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Read-only file system"),
    QT_TRANSLATE_NOOP("orvek::Failure", "Too many open files"),
};

QByteArray sentenceForTheWindow(const QByteArray &sentence) {
  for (const auto &[atTheCommandLine, inTheWindow] : advices) {
    if (sentence == atTheCommandLine) return inTheWindow;
  }
  return sentence;
}

}  // namespace

QString translated(const Phrase &phrase) {
  if (phrase.sentence().isNull()) return phrase;
  std::vector<QString> parts;
  parts.reserve(phrase.parts().size());
  for (const Phrase &part : phrase.parts()) parts.push_back(translated(part));
  const QByteArray sentence = sentenceForTheWindow(phrase.sentence());
  return Phrase::filled(QCoreApplication::translate(context, sentence.constData()), parts);
}

QString failureText(const Failure &failure) {
  return translated(
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "%1: %2"), {failure.what, failure.why}));
}

}  // namespace orvek
