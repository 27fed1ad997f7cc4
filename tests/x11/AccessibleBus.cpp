#include "x11/AccessibleBus.h"

#include "x11/Xdotool.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>

namespace {

constexpr const char* registry = "org.a11y.atspi.Registry";
constexpr const char* rootPath = "/org/a11y/atspi/accessible/root";
constexpr uint labelledBy = 2; // the relation's number on the bus

QString latin(const char* text) { return QString::fromLatin1(text); }

QDBusMessage callOn(const QDBusConnection& connection, const char* service, const char* path,
                    const char* interface, const char* method, const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(latin(service), latin(path),
                                                          latin(interface), latin(method));
    message.setArguments(arguments);
    return connection.call(message, QDBus::Block, patience);
}

// An event as it is noted.
QString line(const QString& what, int value, const QString& service, const QString& path)
{
    return QStringLiteral("%1 %2 %3 %4").arg(what).arg(value).arg(service, path);
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const AccessibleReference& reference)
{
    argument.beginStructure();
    argument << reference.service << reference.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleReference& reference)
{
    argument.beginStructure();
    argument >> reference.service >> reference.path;
    argument.endStructure();
    return argument;
}

// AccessibleObject

QDBusMessage AccessibleObject::call(const char* interface, const char* method,
                                    const QVariantList& arguments) const
{
    if (!m_bus)
        return QDBusMessage();
    return callOn(m_bus->connection(), qPrintable(m_reference.service),
                  qPrintable(m_reference.path.path()), interface, method, arguments);
}

QVariant AccessibleObject::property(const char* interface, const char* name) const
{
    const QDBusMessage reply
        = call("org.freedesktop.DBus.Properties", "Get", {latin(interface), latin(name)});
    return reply.arguments().value(0).value<QDBusVariant>().variant();
}

QString AccessibleObject::role() const
{
    return call(accessible, "GetRoleName").arguments().value(0).toString();
}

QString AccessibleObject::text() const
{
    return call("org.a11y.atspi.Text", "GetText", {0, -1}).arguments().value(0).toString();
}

double AccessibleObject::value() const
{
    return property("org.a11y.atspi.Value", "CurrentValue").toDouble();
}

bool AccessibleObject::is(State state) const
{
    const auto words = qdbus_cast<QList<uint>>(call(accessible, "GetState").arguments().value(0));
    return (words.value(state / 32) >> (state % 32)) & 1U;
}

QVector<AccessibleObject> AccessibleObject::children() const
{
    QVector<AccessibleObject> objects;
    const auto references = qdbus_cast<QVector<AccessibleReference>>(
        call(accessible, "GetChildren").arguments().value(0));
    for (const AccessibleReference& reference : references)
        objects.append({*m_bus, reference});
    return objects;
}

QString AccessibleObject::labels() const
{
    QStringList names;
    const QDBusMessage reply = call(accessible, "GetRelationSet");
    if (reply.arguments().isEmpty())
        return QString();
    const auto relations = reply.arguments().first().value<QDBusArgument>();
    relations.beginArray();
    while (!relations.atEnd()) {
        uint kind = 0;
        QVector<AccessibleReference> others;
        relations.beginStructure();
        relations >> kind >> others;
        relations.endStructure();
        for (const AccessibleReference& other : qAsConst(others)) {
            if (kind == labelledBy)
                names << AccessibleObject(*m_bus, other).name();
        }
    }
    relations.endArray();
    return names.join(QLatin1Char('|'));
}

AccessibleObject AccessibleObject::find(const QString& wantedRole, const QString& wantedName) const
{
    for (const AccessibleObject& child : children()) {
        if (!child.is(Showing))
            continue;
        if (child.name() == wantedName && child.role() == wantedRole)
            return child;
        const AccessibleObject below = child.find(wantedRole, wantedName);
        if (below.isKnown())
            return below;
    }
    return AccessibleObject();
}

bool AccessibleObject::act(const QString& action) const
{
    const int count = property("org.a11y.atspi.Action", "NActions").toInt();
    for (int index = 0; index < count; ++index) {
        const QDBusMessage name = call("org.a11y.atspi.Action", "GetName", {index});
        if (name.arguments().value(0).toString() == action)
            return call("org.a11y.atspi.Action", "DoAction", {index}).arguments().value(0).toBool();
    }
    return false;
}

void AccessibleObject::grabFocus() const { call("org.a11y.atspi.Component", "GrabFocus"); }

// AccessibleBus

AccessibleBus::AccessibleBus()
    : m_connection(latin("assistive technology"))
{
    qDBusRegisterMetaType<AccessibleReference>();
    qDBusRegisterMetaType<QVector<AccessibleReference>>();
}

AccessibleBus::~AccessibleBus()
{
    QDBusConnection::disconnectFromBus(latin("assistive technology"));
    QDBusConnection::disconnectFromBus(latin("session"));
    // The other bus and its registry end with the session.
    m_daemon.terminate();
    m_daemon.waitForFinished(patience);
}

bool AccessibleBus::start()
{
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start(latin("dbus-daemon"),
                   {latin("--session"), latin("--nofork"), latin("--print-address")});
    while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead(patience)) { }
    m_sessionAddress = QString::fromUtf8(m_daemon.readLine()).trimmed();
    if (m_sessionAddress.isEmpty()) {
        qWarning("No session bus");
        return false;
    }

    const QDBusConnection session
        = QDBusConnection::connectToBus(m_sessionAddress, latin("session"));
    const QDBusMessage address
        = callOn(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", {});
    callOn(session, "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
           {latin("org.a11y.Status"), latin("IsEnabled"), QVariant::fromValue(QDBusVariant(true))});
    if (address.type() != QDBusMessage::ReplyMessage) {
        qWarning() << "No bus of assistive technology:" << address.errorMessage();
        return false;
    }
    m_connection = QDBusConnection::connectToBus(address.arguments().value(0).toString(),
                                                 latin("assistive technology"));

    // Programs send what somebody has asked for.
    for (const char* const event :
         {"object:property-change:accessible-description", "object:state-changed:showing"})
        callOn(m_connection, registry, "/org/a11y/atspi/registry", registry, "RegisterEvent",
               {latin(event)});
    for (const char* const event : {"PropertyChange", "StateChanged"}) {
        if (!m_connection.connect(QString(), QString(), latin("org.a11y.atspi.Event.Object"),
                                  latin(event), this, SLOT(note(QDBusMessage))))
            return false;
    }
    return true;
}

AccessibleObject AccessibleBus::program(const QString& name) const
{
    const AccessibleObject root(*this, {latin(registry), QDBusObjectPath(latin(rootPath))});
    for (const AccessibleObject& program : root.children()) {
        if (program.name() == name)
            return program;
    }
    return AccessibleObject();
}

int AccessibleBus::descriptionChanges(const AccessibleObject& object) const
{
    const AccessibleReference& it = object.reference();
    return m_events.count(line(latin("accessible-description"), 0, it.service, it.path.path()));
}

int AccessibleBus::appearances(const AccessibleObject& object) const
{
    const AccessibleReference& it = object.reference();
    return m_events.count(line(latin("showing"), 1, it.service, it.path.path()));
}

void AccessibleBus::note(const QDBusMessage& event)
{
    const QVariantList arguments = event.arguments();
    m_events << line(arguments.value(0).toString(), arguments.value(1).toInt(), event.service(),
                     event.path());
}
