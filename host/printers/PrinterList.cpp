// SPDX-License-Identifier: Apache-2.0
// Asks for destinations and says in words what they are.

#include "host/printers/PrinterList.h"

namespace orvek {
namespace {

enum class ServersState { Idle = 3, Printing = 4, Stopped = 5 };

QString textOption(const QMap<QString, QString> &options, const char *name) {
  const QString value = options.value(QString::fromLatin1(name));
  return value.isEmpty() ? QString() : value;
}

PrinterState stateFrom(const QString &number) {
  switch (static_cast<ServersState>(number.toInt())) {
    case ServersState::Idle:
      return PrinterState::Idle;
    case ServersState::Printing:
      return PrinterState::Printing;
    case ServersState::Stopped:
      return PrinterState::Stopped;
    default:
      return PrinterState::Unknown;
  }
}

QStringList reasonsFrom(const QString &keywords) {
  QStringList words;
  for (const QString &keyword : keywords.split(u',', Qt::SkipEmptyParts)) {
    const QString reason = reasonInWords(keyword.trimmed());
    if (!reason.isEmpty() && !words.contains(reason)) words << reason;
  }
  return words;
}

QCborMap fieldsOf(const QString &destination) {
  return {{QLatin1String("destination"), fieldOf(destination)}};
}

std::optional<Queue> queueFrom(Fields fields) {
  Queue queue;
  queue.name = fields.text("name");
  queue.instance = fields.text("instance");
  queue.isDefault = fields.flag("default");
  queue.stateMessage = fields.text("message");
  queue.options = fields.options("options");
  if (!fields.isSound() || queue.name.isEmpty()) return std::nullopt;
  const auto &options = queue.options;
  queue.info = textOption(options, "printer-info");
  queue.location = textOption(options, "printer-location");
  queue.makeAndModel = textOption(options, "printer-make-and-model");
  queue.deviceUri = textOption(options, "device-uri");
  queue.state = stateFrom(textOption(options, "printer-state"));
  queue.reasons = reasonsFrom(textOption(options, "printer-state-reasons"));
  queue.acceptsJobs = textOption(options, "printer-is-accepting-jobs") != QStringLiteral("false");
  return queue;
}

}  // namespace

Result<QList<Queue>> listPrinters(const ServerAccess &access) {
  auto talk = ServerTalk::open(access);
  if (!talk) return talk.failure();
  auto answer = talk.value()->ask(ServerTask::List);
  if (!answer) return answer.failure();
  QList<Queue> queues;
  for (const QCborValue found : answer.value().list("queues")) {
    auto queue = queueFrom(Fields(found));
    if (!queue) return talk.value()->unreadable();
    queues << *queue;
  }
  return answer.value().isSound() ? Result<QList<Queue>>(queues) : talk.value()->unreadable();
}

Result<Queue> findPrinter(const ServerAccess &access, const QString &destination) {
  auto talk = ServerTalk::open(access);
  if (!talk) return talk.failure();
  return findPrinter(*talk.value(), destination);
}

Result<Queue> findPrinter(ServerTalk &talk, const QString &destination) {
  if (const auto queue = talk.known(destination)) return *queue;
  const auto answer = talk.ask(ServerTask::Find, fieldsOf(destination));
  if (!answer) return answer.failure();
  const auto queue = queueFrom(answer.value());
  if (!queue) return talk.unreadable();
  talk.noteFound(destination, *queue);
  return *queue;
}

void findPrinterAhead(const ServerAccess &access, const QString &destination) {
  ServerTalk::openAhead(access, ServerTask::Find, fieldsOf(destination));
}

}  // namespace orvek
