#pragma once
// A read-write Q_PROPERTY with its member, getter, setter and change signal, for the kit's small
// view models. The setter emits only on a real change, so QML bindings do not churn.

#include <QList>
#include <QQmlListProperty>

#define KIT_PROPERTY_INIT(Type, name, setter, initial)                \
    Q_PROPERTY(Type name READ name WRITE setter NOTIFY name##Changed) \
public:                                                               \
    Type name() const {                                               \
        return m_##name;                                              \
    }                                                                 \
    void setter(Type const& value) {                                  \
        if (m_##name == value) return;                                \
        m_##name = value;                                             \
        emit name##Changed();                                         \
    }                                                                 \
    Q_SIGNAL void name##Changed();                                    \
                                                                      \
private:                                                              \
    Type m_##name {                                                   \
        initial                                                       \
    }

// Starts out value-initialised: empty, zero, false or null.
#define KIT_PROPERTY(Type, name, setter) KIT_PROPERTY_INIT(Type, name, setter, )

// A list of a view model's objects that QML reads but cannot change.
template <class T>
QQmlListProperty<T> readOnlyList(QObject* owner, const QList<T*>& list) {
    using List = const QList<T*>;
    return QQmlListProperty<T>(
        owner, const_cast<QList<T*>*>(&list),
        [](QQmlListProperty<T>* p) { return static_cast<List*>(p->data)->size(); },
        [](QQmlListProperty<T>* p, qsizetype i) { return static_cast<List*>(p->data)->at(i); });
}
