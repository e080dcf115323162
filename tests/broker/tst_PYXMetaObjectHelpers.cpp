// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMetaObjectHelpers.h"
#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

using PYXRuntime::PYXMetaObjectHelpers;
using PYXRuntime::PYXTraceWrapper;

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
    void compatibility_data();
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
    const QObject object;
    QVERIFY(
        !PYXMetaObjectHelpers::checkInterfaceCompatibility(static_cast<const QObject *>(nullptr), interface));
    QVERIFY(!PYXMetaObjectHelpers::checkInterfaceCompatibility(&object,
                                                               static_cast<const QMetaObject *>(nullptr)));
}

void tst_PYXMetaObjectHelpers::compatibility_data()
{
    QTest::addColumn<QObject *>("object");
    QTest::addColumn<bool>("compatible");
    QTest::addColumn<QStringList>("traces");
    QTest::newRow("inherits") << static_cast<QObject *>(new Derived) << true << QStringList();
    QTest::newRow("has all, one with another access")
        << static_cast<QObject *>(new Complete) << true
        << QStringList{"Warn|slot 'reset()' has wrong access specifier 'private' : expected 'public'"};
    QTest::newRow("lacks all") << static_cast<QObject *>(new Lacking) << false
                               << QStringList{"Error|public signal 'changed(int)' is missing from interface",
                                              "Error|public slot 'reset()' is missing from interface",
                                              "Error|protected slot 'guarded()' is missing from interface",
                                              "Error|public method 'method(int)' is missing from interface"};
}

void tst_PYXMetaObjectHelpers::compatibility()
{
    QFETCH(QObject *, object);
    QFETCH(bool, compatible);
    QFETCH(QStringList, traces);
    const QScopedPointer<QObject> owner(object);
    const Interface interface;
    RecordingTracer tracer;
    PYXTraceWrapper::addTracer(&tracer);
    const bool bResult = PYXMetaObjectHelpers::checkInterfaceCompatibility(object, &interface);
    PYXTraceWrapper::removeTracer(&tracer);
    QCOMPARE(bResult, compatible);
    tracer.calls.replaceInStrings(QRegularExpression("\\|source\\\\PYXMetaObjectHelpers\\|\\d+$"), "");
    QCOMPARE(tracer.calls, traces);
}

QTEST_APPLESS_MAIN(tst_PYXMetaObjectHelpers)
#include "tst_PYXMetaObjectHelpers.moc"
