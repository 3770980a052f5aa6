// SPDX-License-Identifier: Apache-2.0
// Fields are CBOR; documents and descriptions go over as they are.

#include "host/printers/ServerMessages.h"

#include <QtEndian>

#include "platform/system/OneLine.h"

namespace orvek {
namespace {

constexpr qsizetype lengthBytes = 4;
constexpr qsizetype headBytes = lengthBytes + 1;
constexpr qsizetype longestFields = 8 << 20;
constexpr qsizetype longestBytes = 64 << 20;
constexpr int deepestPhrase = 4;
constexpr qsizetype mostParts = 9;

constexpr QLatin1String whatField("what");
constexpr QLatin1String whyField("why");

qsizetype longestOf(MessageKind kind) {
  return kind == MessageKind::Description ? longestBytes : longestFields;
}

QCborValue fieldOfPhrase(const Phrase &phrase) {
  if (phrase.sentence().isNull()) return fieldOf(static_cast<const QString &>(phrase));
  QCborArray parts{QString::fromUtf8(phrase.sentence())};
  for (const Phrase &part : phrase.parts()) parts << fieldOfPhrase(part);
  return parts;
}

// Of bytes that are no whole value, the toolkit gives what it has read of them: a map in it may
// lack the value of its last key, and looking that up reads what is not there.
QCborValue valueIn(const QByteArray &bytes) {
  QCborParserError error{};
  const QCborValue value = QCborValue::fromCbor(bytes, &error);
  return error.error == QCborError::NoError ? value : QCborValue();
}

// A server's words end up in a window or on a terminal.
QString plain(const QString &words) {
  return QString::fromStdString(oneLine(words.toStdString()));
}

Phrase phraseIn(const QCborValue &value, int depth) {
  if (value.isString()) return Phrase(plain(value.toString()));
  const QCborArray all = value.toArray();
  if (all.isEmpty() || all.size() > mostParts + 1 || depth == deepestPhrase) return {};
  std::vector<Phrase> parts;
  for (qsizetype i = 1; i < all.size(); ++i) parts.push_back(phraseIn(all.at(i), depth + 1));
  return Phrase(plain(all.first().toString()).toUtf8().constData(), std::move(parts));
}

}  // namespace

QByteArray framed(const Message &message) {
  QByteArray bytes(headBytes, Qt::Uninitialized);
  qToBigEndian(static_cast<quint32>(message.bytes.size()), bytes.data());
  bytes[lengthBytes] = static_cast<char>(message.kind);
  return bytes + message.bytes;
}

std::optional<Message> MessageReader::next() {
  if (m_isBroken || m_bytes.size() < headBytes) return std::nullopt;
  const auto length = static_cast<qsizetype>(qFromBigEndian<quint32>(m_bytes.constData()));
  const auto kind = static_cast<MessageKind>(m_bytes.at(lengthBytes));
  m_isBroken = length > longestOf(kind);
  if (m_isBroken || m_bytes.size() - headBytes < length) return std::nullopt;
  Message message{kind, m_bytes.mid(headBytes, length)};
  m_bytes.remove(0, headBytes + length);
  return message;
}

Fields::Fields(const QCborValue &value) : m_map(value.toMap()), m_isSound(value.isMap()) {}

Fields Fields::of(const QByteArray &bytes) {
  return Fields(valueIn(bytes));
}

QCborValue Fields::value(const char *name, QCborValue::Type type) {
  const QCborValue found = m_map.value(QLatin1String(name));
  m_isSound = m_isSound && found.type() == type;
  return found;
}

QString Fields::text(const char *name) {
  const QCborValue found = m_map.value(QLatin1String(name));
  m_isSound = m_isSound && (found.isString() || found.isNull());
  return found.toString();
}

qint64 Fields::number(const char *name) {
  return value(name, QCborValue::Integer).toInteger();
}

bool Fields::flag(const char *name) {
  const QCborValue found = m_map.value(QLatin1String(name));
  m_isSound = m_isSound && found.isBool();
  return found.toBool();
}

QStringList Fields::texts(const char *name) {
  QStringList all;
  for (const QCborValue text : list(name)) {
    m_isSound = m_isSound && (text.isString() || text.isNull());
    all << text.toString();
  }
  return all;
}

QMap<QString, QString> Fields::options(const char *name) {
  QMap<QString, QString> all;
  const QCborMap found = value(name, QCborValue::Map).toMap();
  for (auto entry = found.cbegin(); entry != found.cend(); ++entry) {
    m_isSound = m_isSound && entry.key().isString() && entry.value().isString();
    all.insert(entry.key().toString(), entry.value().toString());
  }
  return all;
}

QCborArray Fields::list(const char *name) {
  return value(name, QCborValue::Array).toArray();
}

QCborValue fieldOf(const QString &text) {
  return text.isNull() ? QCborValue(nullptr) : QCborValue(text);
}

QCborValue fieldOf(const QStringList &texts) {
  QCborArray all;
  for (const QString &text : texts) all << fieldOf(text);
  return all;
}

QCborValue fieldOf(const QMap<QString, QString> &options) {
  QCborMap all;
  for (auto entry = options.cbegin(); entry != options.cend(); ++entry) {
    all.insert(entry.key(), QCborValue(entry.value()));
  }
  return all;
}

Message messageOf(MessageKind kind, const QCborMap &fields) {
  return {kind, fields.toCborValue().toCbor()};
}

Message failedMessage(const Failure &failure) {
  return messageOf(MessageKind::Failed, {{whatField, fieldOfPhrase(failure.what)},
                                         {whyField, fieldOfPhrase(failure.why)}});
}

Failure failureIn(const Message &message) {
  const QCborMap fields = valueIn(message.bytes).toMap();
  const Failure failure{FailureKind::Io, phraseIn(fields.value(whatField), 0),
                        phraseIn(fields.value(whyField), 0)};
  return failure.why.isEmpty() ? Failure{FailureKind::Io, failure.what, unreadableAnswer()}
                               : failure;
}

Phrase unreadableAnswer() {
  return Phrase(
      QT_TRANSLATE_NOOP("orvek::Failure", "the print server sent an answer that cannot be read"));
}

Phrase stoppedAnswering() {
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                  "the print server stopped answering; try again once it is up"));
}

}  // namespace orvek
