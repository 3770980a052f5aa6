// SPDX-License-Identifier: Apache-2.0
// Speaks to what is on the bus, and hears it.

#include "tests/access/AccessBus.h"

#include <QDBusArgument>
#include <QTest>

namespace orvek::test {
namespace {

constexpr int patience = 10000;  // milliseconds
constexpr const char *accessible = "org.a11y.atspi.Accessible";

// Of AT-SPI's states.
constexpr int checkedState = 4;
constexpr int focusedState = 12;
constexpr int showingState = 25;

AccessNode nodeIn(const QDBusArgument &argument) {
  AccessNode node;
  QDBusObjectPath path;
  argument.beginStructure();
  argument >> node.service >> path;
  argument.endStructure();
  node.path = path.path();
  return node;
}

QString plain(QString name) {
  name.remove(u'&');
  return name.endsWith(u':') ? name.chopped(1) : name;
}

}  // namespace

QDBusMessage AccessBus::call(const AccessNode &node, const char *interface, const char *method,
                             const QVariantList &arguments) const {
  QDBusMessage message = QDBusMessage::createMethodCall(
      node.service, node.path, QLatin1String(interface), QLatin1String(method));
  message.setArguments(arguments);
  return m_bus.call(message, QDBus::Block, patience);
}

QVariant AccessBus::property(const AccessNode &node, const char *interface,
                             const char *name) const {
  const QDBusMessage reply = call(node, "org.freedesktop.DBus.Properties", "Get",
                                  {QString::fromLatin1(interface), QString::fromLatin1(name)});
  return reply.arguments().value(0).value<QDBusVariant>().variant();
}

QStringList AccessBus::actions(const AccessNode &node) const {
  QStringList names;
  const int count = property(node, "org.a11y.atspi.Action", "NActions").toInt();
  for (int place = 0; place < count; ++place) {
    const auto name = call(node, "org.a11y.atspi.Action", "GetName", {place});
    names << name.arguments().value(0).toString();
  }
  return names;
}

QList<AccessNode> AccessBus::windows() const {
  const AccessNode desktop{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
  QList<AccessNode> windows;
  for (const AccessNode &program : children(desktop)) windows << children(program);
  return windows;
}

QList<AccessNode> AccessBus::children(const AccessNode &node) const {
  QList<AccessNode> found;
  const QDBusMessage reply = call(node, accessible, "GetChildren");
  if (reply.type() != QDBusMessage::ReplyMessage) return found;
  const auto list = reply.arguments().value(0).value<QDBusArgument>();
  list.beginArray();
  while (!list.atEnd()) found << nodeIn(list);
  list.endArray();
  return found;
}

AccessNode AccessBus::find(const QString &role, const QString &name,
                           const AccessNode &below) const {
  QList<AccessNode> waiting = below.isNull() ? windows() : QList<AccessNode>{below};
  while (!waiting.isEmpty()) {
    const AccessNode node = waiting.takeFirst();
    const auto isNamed = [&] {
      return name.isNull() || plain(this->name(node)) == name || plain(label(node)) == name;
    };
    if (this->role(node) == role && isShowing(node) && isNamed()) return node;
    waiting << children(node);
  }
  return {};
}

AccessNode AccessBus::waitFor(const QString &role, const QString &name) const {
  AccessNode node;
  static_cast<void>(QTest::qWaitFor(
      [&] {
        node = find(role, name);
        return !node.isNull();
      },
      patience));
  return node;
}

QString AccessBus::name(const AccessNode &node) const {
  return property(node, accessible, "Name").toString();
}

QString AccessBus::label(const AccessNode &node) const {
  constexpr uint labelledBy = 2;
  const QVariant set = call(node, accessible, "GetRelationSet").arguments().value(0);
  if (!set.canConvert<QDBusArgument>()) return {};
  const auto relations = set.value<QDBusArgument>();
  QString words;
  relations.beginArray();
  while (!relations.atEnd()) {
    uint kind = 0;
    relations.beginStructure();
    relations >> kind;
    relations.beginArray();
    while (!relations.atEnd()) {
      const AccessNode other = nodeIn(relations);
      if (kind == labelledBy && words.isNull()) words = name(other);
    }
    relations.endArray();
    relations.endStructure();
  }
  relations.endArray();
  return words;
}

QString AccessBus::description(const AccessNode &node) const {
  return property(node, accessible, "Description").toString();
}

QString AccessBus::role(const AccessNode &node) const {
  return call(node, accessible, "GetRoleName").arguments().value(0).toString();
}

QString AccessBus::text(const AccessNode &node) const {
  const QDBusMessage reply = call(node, "org.a11y.atspi.Text", "GetText", {0, -1});
  if (reply.type() == QDBusMessage::ReplyMessage) return reply.arguments().value(0).toString();
  return property(node, "org.a11y.atspi.Value", "CurrentValue").toString();
}

bool AccessBus::hasState(const AccessNode &node, int state) const {
  const QDBusMessage reply = call(node, accessible, "GetState");
  QList<uint> words;
  const QVariant value = reply.arguments().value(0);
  if (value.canConvert<QDBusArgument>()) value.value<QDBusArgument>() >> words;
  constexpr int bits = 32;
  return words.size() > state / bits && ((words[state / bits] >> (state % bits)) & 1U) != 0;
}

bool AccessBus::isShowing(const AccessNode &node) const {
  return hasState(node, showingState);
}

bool AccessBus::isChecked(const AccessNode &node) const {
  return hasState(node, checkedState);
}

bool AccessBus::isFocused(const AccessNode &node) const {
  return hasState(node, focusedState);
}

bool AccessBus::act(const AccessNode &node, const QString &action) const {
  const auto place = static_cast<int>(actions(node).indexOf(action));
  if (place < 0) return false;
  return call(node, "org.a11y.atspi.Action", "DoAction", {place}).arguments().value(0).toBool();
}

// The registry sends it to the screen as a keyboard would; 3 is "by its symbol".
void AccessBus::press(const QString &key) const {
  static const QMap<QString, int> symbols{{"Down", 0xff54},   {"Up", 0xff52},  {"End", 0xff57},
                                          {"Home", 0xff50},   {"space", 0x20}, {"Return", 0xff0d},
                                          {"Escape", 0xff1b}, {"Tab", 0xff09}};
  const AccessNode keys{"org.a11y.atspi.Registry",
                        "/org/a11y/atspi/registry/deviceeventcontroller"};
  constexpr uint bySymbol = 3;
  call(keys, "org.a11y.atspi.DeviceEventController", "GenerateKeyboardEvent",
       {symbols.value(key), QString(), bySymbol});
}

QString AccessBus::tree(const AccessNode &node, int depth) const {
  QString lines;
  if (isShowing(node)) {
    lines = QString(qsizetype{2} * depth, u' ') + role(node) + QStringLiteral(" \"") + name(node) +
            u'"';
    const QString by = label(node);
    if (!by.isNull()) lines += QStringLiteral(" by \"") + by + u'"';
    const QString more = description(node);
    if (!more.isEmpty()) lines += QStringLiteral(" (") + more + u')';
    if (isFocused(node)) lines += QStringLiteral(" focused");
    lines += u'\n';
  }
  for (const AccessNode &child : children(node)) lines += tree(child, depth + 1);
  return lines;
}

QStringList AccessBus::announced() const {
  QStringList words;
  for (const AccessEvent &event : m_heard) {
    if (event.kind == QLatin1String("announcement")) words << event.words;
  }
  return words;
}

bool AccessBus::waitForWords(const QString &part) const {
  return QTest::qWaitFor([&] { return announced().join(u'\n').contains(part); }, patience);
}

void AccessBus::announcement(const QDBusMessage &event) {
  const QString words = event.arguments().value(3).value<QDBusVariant>().variant().toString();
  m_heard.append({QStringLiteral("announcement"), words, {event.service(), event.path()}});
}

// Whoever listens asks what it is that shows now; here the test does.
void AccessBus::stateChanged(const QDBusMessage &event) {
  const bool shows = event.arguments().value(0).toString() == QLatin1String("showing") &&
                     event.arguments().value(1).toInt() == 1;
  if (shows) {
    m_heard.append({QStringLiteral("showing"), QString(), {event.service(), event.path()}});
  }
}

}  // namespace orvek::test
