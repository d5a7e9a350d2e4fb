#include "accessibility/desktop.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QThread>

namespace accessibility {

QDBusArgument& operator<<(QDBusArgument& argument, const Reference& reference) {
  argument.beginStructure();
  argument << reference.bus << reference.path;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Reference& reference) {
  argument.beginStructure();
  argument >> reference.bus >> reference.path;
  argument.endStructure();
  return argument;
}

namespace {

constexpr int kFocusable = 11, kFocused = 12, kShowing = 25;  // bits of a state
constexpr uint kSymbol = 3;                                   // of the ways to name a key
constexpr uint kLabelledBy = 2;                               // of the relations
constexpr int kEntriesRead = 3;
constexpr int kAnswerIn = 5000;  // milliseconds

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kRegistry = QStringLiteral("org.a11y.atspi.Registry");
const Reference kRoot = {kRegistry,
                         QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))};

QDBusConnection AccessibilityBus() {
  const QDBusReply<QString> address =
      QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
          QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
          QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
  return QDBusConnection::connectToBus(address.value(), QStringLiteral("accessibility"));
}

QDBusMessage Ask(const QDBusConnection& bus, const Reference& at, const QString& interface,
                 const QString& method, const QVariantList& arguments = {}) {
  QDBusMessage call = QDBusMessage::createMethodCall(at.bus, at.path.path(), interface, method);
  call.setArguments(arguments);
  return bus.call(call, QDBus::Block, kAnswerIn);
}

QVariant Get(const QDBusConnection& bus, const Reference& at, const QString& interface,
             const char* property) {
  const QDBusReply<QDBusVariant> reply =
      Ask(bus, at, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
          {interface, QString::fromLatin1(property)});
  return reply.value().variant();
}

quint64 StateOf(const QDBusConnection& bus, const Reference& at) {
  const QDBusReply<QList<uint>> reply = Ask(bus, at, kAccessible, QStringLiteral("GetState"));
  const QList<uint> words = reply.value();
  return words.value(0) | quint64{words.value(1)} << 32;
}

bool Has(quint64 state, int bit) {
  return (state >> bit & 1) != 0;
}

}  // namespace

Desktop::Desktop(const QString& program) : bus_(AccessibilityBus()) {
  qDBusRegisterMetaType<Reference>();
  qDBusRegisterMetaType<QList<Reference>>();
  program_.setProcessChannelMode(QProcess::ForwardedChannels);
  program_.start(program, QStringList());
}

Desktop::~Desktop() {
  program_.kill();
  program_.waitForFinished();
}

bool Desktop::Until(const std::function<bool()>& condition) {
  constexpr int kPatience = 10000, kPause = 20;  // milliseconds
  QElapsedTimer time;
  for (time.start(); time.elapsed() < kPatience; QThread::msleep(kPause)) {
    if (condition()) return true;
  }
  return false;
}

std::vector<Reference> Desktop::ChildrenOf(const Reference& at) {
  const QDBusReply<QList<Reference>> reply =
      Ask(bus_, at, kAccessible, QStringLiteral("GetChildren"));
  const QList<Reference> children = reply.value();
  return {children.begin(), children.end()};
}

QString Desktop::LabelOf(const Reference& at) {
  const QDBusMessage reply = Ask(bus_, at, kAccessible, QStringLiteral("GetRelationSet"));
  const auto relations = reply.arguments().value(0).value<QDBusArgument>();
  QString label;
  for (relations.beginArray(); !relations.atEnd();) {
    uint kind = 0;
    QList<Reference> targets;
    relations.beginStructure();
    relations >> kind >> targets;
    relations.endStructure();
    if (kind == kLabelledBy && !targets.isEmpty()) {
      label = Get(bus_, targets.first(), kAccessible, "Name").toString();
    }
  }
  return label;
}

Node Desktop::Look(const Reference& at) {
  Node node;
  node.at = at;
  node.role =
      QDBusReply<QString>(Ask(bus_, at, kAccessible, QStringLiteral("GetRoleName"))).value();
  node.name = Get(bus_, at, kAccessible, "Name").toString();
  node.label = LabelOf(at);
  const quint64 state = StateOf(bus_, at);
  node.showing = Has(state, kShowing);
  node.focusable = Has(state, kFocusable);
  return node;
}

std::optional<Node> Desktop::Window(const QString& title, const QString& role) {
  std::optional<Node> found;
  Until([&] {
    for (const Reference& program : ChildrenOf(kRoot)) {
      for (const Reference& window : ChildrenOf(program)) {
        const Node node = Look(window);
        const bool fits = node.showing && node.name == title;
        if (fits && (role.isEmpty() || node.role == role)) found = node;
      }
    }
    return found.has_value();
  });
  return found;
}

void Desktop::Gather(const Reference& at, std::vector<Node>& into) {
  const Node node = Look(at);
  if (!node.showing) return;
  into.push_back(node);
  std::vector<Reference> children = ChildrenOf(at);
  if (node.role == u"list" && children.size() > kEntriesRead) children.resize(kEntriesRead);
  for (const Reference& child : children) Gather(child, into);
}

std::vector<Node> Desktop::Read(const Node& window) {
  std::vector<Node> nodes;
  Gather(window.at, nodes);
  return nodes;
}

bool Desktop::IsFocused(const Node& node) {
  return Has(StateOf(bus_, node.at), kFocused);
}

bool Desktop::IsShowing(const Node& node) {
  return Has(StateOf(bus_, node.at), kShowing);
}

int Desktop::CaretOf(const Node& node) {
  return Get(bus_, node.at, QStringLiteral("org.a11y.atspi.Text"), "CaretOffset").toInt();
}

void Desktop::Press(int symbol) {
  const Reference keyboard = {
      kRegistry, QDBusObjectPath(QStringLiteral("/org/a11y/atspi/registry/deviceeventcontroller"))};
  Ask(bus_, keyboard, QStringLiteral("org.a11y.atspi.DeviceEventController"),
      QStringLiteral("GenerateKeyboardEvent"), {symbol, QString(), kSymbol});
}

bool Desktop::Act(const Node& node) {
  return Ask(bus_, node.at, QStringLiteral("org.a11y.atspi.Action"), QStringLiteral("DoAction"),
             {0})
             .type() == QDBusMessage::ReplyMessage;
}

}  // namespace accessibility
