// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMetaObjectHelpers.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

using PYXRuntime::PYXMetaObjectHelpers;

class Interface : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE void method(int) {}
signals:
    void changed(int value);
public slots:
    void reset() {}
protected slots:
    void guarded() {}
};

class Complete : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE void method(int) {}
signals:
    void changed(int value);
private slots:
    void reset() {}
protected slots:
    void guarded() {}
};

class Lacking : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE void changed(int) {} // no signal
signals:
    void method(int); // no plain method
public slots:
    void reset(int) {} // another signature
};

class Derived : public Interface
{
    Q_OBJECT
};

class tst_PYXMetaObjectHelpers : public QObject
{
    Q_OBJECT
private slots:
    void inheritance();
    void compatibility();
};

void tst_PYXMetaObjectHelpers::inheritance()
{
    const QMetaObject *const interface = &Interface::staticMetaObject;
    QVERIFY(PYXMetaObjectHelpers::checkInherits(&Derived::staticMetaObject, interface));
    QVERIFY(!PYXMetaObjectHelpers::checkInherits(interface, &Derived::staticMetaObject));
    QVERIFY(!PYXMetaObjectHelpers::checkInherits(nullptr, interface));
    QVERIFY(!PYXMetaObjectHelpers::checkInherits(interface, nullptr));
    // The same class from another library has a meta-object of its own.
    const QMetaObject twin = *interface;
    QVERIFY(PYXMetaObjectHelpers::checkInherits(&twin, interface));
    const QObject *const none = nullptr;
    QVERIFY(!PYXMetaObjectHelpers::checkInterfaceCompatibility(none, interface));
    QVERIFY(!PYXMetaObjectHelpers::checkInterfaceCompatibility(this, none));
}

void tst_PYXMetaObjectHelpers::compatibility()
{
    /** What the check traces, and its result as the last entry. */
    const Interface interface;
    const auto check = [&](const QObject &object) {
        bool bCompatible = false;
        QStringList report = tracesOf(
            [&] { bCompatible = PYXMetaObjectHelpers::checkInterfaceCompatibility(&object, &interface); });
        report = withoutLines(report).replaceInStrings("|source\\PYXMetaObjectHelpers", "");
        return report + QStringList{bCompatible ? "compatible" : "incompatible"};
    };
    QCOMPARE(check(Derived()), QStringList{"compatible"});
    QCOMPARE(check(Complete()),
             (QStringList{"Warn|slot 'reset()' has wrong access specifier 'private' : expected 'public'",
                          "compatible"}));
    QCOMPARE(check(Lacking()),
             (QStringList{"Error|public signal 'changed(int)' is missing from interface",
                          "Error|public slot 'reset()' is missing from interface",
                          "Error|protected slot 'guarded()' is missing from interface",
                          "Error|public method 'method(int)' is missing from interface", "incompatible"}));
}

QTEST_APPLESS_MAIN(tst_PYXMetaObjectHelpers)
#include "tst_PYXMetaObjectHelpers.moc"
