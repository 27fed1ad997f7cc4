#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QProcess>
#include <QStringList>
#include <QVariant>
#include <QVector>

/// How the bus of assistive technology names an object: a program and an object in it.
struct AccessibleReference {
    QString service;
    QDBusObjectPath path;
};
Q_DECLARE_METATYPE(AccessibleReference)
Q_DECLARE_METATYPE(QVector<AccessibleReference>)

class AccessibleBus;

/// An object on the bus, as a screen reader knows it. What is not there has no answers.
class AccessibleObject {
public:
    /// By the numbers that the bus gives them.
    enum State { Checked = 4, Focused = 12, Selected = 23, Showing = 25, ReadOnly = 43 };

    AccessibleObject() = default;
    AccessibleObject(const AccessibleBus& bus, const AccessibleReference& reference)
        : m_bus(&bus)
        , m_reference(reference)
    {
    }

    bool isKnown() const { return m_bus; }
    QString name() const { return property(accessible, "Name").toString(); }
    QString description() const { return property(accessible, "Description").toString(); }
    QString role() const; ///< "push button"
    QString labels() const; ///< the names of those that the bus says label it
    QString text() const; ///< what a text holds
    double value() const; ///< what a spin box holds
    bool is(State state) const;
    QVector<AccessibleObject> children() const;
    const AccessibleReference& reference() const { return m_reference; }

    /// The first one in the tree below that is in sight and has that role and name.
    AccessibleObject find(const QString& role, const QString& name) const;

    /// False if it has no such action.
    bool act(const QString& action) const;
    bool press() const { return act(QStringLiteral("Press")); }
    void grabFocus() const;

private:
    static constexpr const char* accessible = "org.a11y.atspi.Accessible";

    QVariant property(const char* interface, const char* name) const;
    QDBusMessage call(const char* interface, const char* method,
                      const QVariantList& arguments = {}) const;

    const AccessibleBus* m_bus = nullptr;
    AccessibleReference m_reference;
};

/**
 * A session bus of its own with the bus of assistive technology beside it, on which programs are
 * told that somebody listens.
 *
 * Some events are noted, each with the object that it is about. Ends both buses in the end.
 */
class AccessibleBus : public QObject {
    Q_OBJECT

public:
    AccessibleBus();
    ~AccessibleBus() override;

    /// False, with a warning that says why, when there is no such bus.
    bool start();

    QString sessionAddress() const { return m_sessionAddress; }
    const QDBusConnection& connection() const { return m_connection; }

    /// The program of that name, when it is there.
    AccessibleObject program(const QString& name) const;

    /// How often the description of @p object was said to have changed.
    int descriptionChanges(const AccessibleObject& object) const;

    /// How often @p object was said to have come into sight.
    int appearances(const AccessibleObject& object) const;

private Q_SLOTS:
    void note(const QDBusMessage& event);

private:
    QProcess m_daemon;
    QString m_sessionAddress;
    QDBusConnection m_connection;
    QStringList m_events; ///< what happened, and to which object
};
