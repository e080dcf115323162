// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMetaObjectHelpers.h"

#include "PYXTraceWrapper.h"

#include <QtCore/QHash>
#include <QtCore/QMetaMethod>

#include <cstring>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXMetaObjectHelpers";

using Accesses = QHash<QByteArray, QMetaMethod::Access>;

/** Every method of a class, inherited ones included, with its access, by signature. */
struct struMethods
{
    Accesses methods;
    Accesses signalMethods;
    Accesses slotMethods;
};

QLatin1String kindWord(QMetaMethod::MethodType type)
{
    switch (type) {
    case QMetaMethod::Signal:
        return QLatin1String("signal");
    case QMetaMethod::Slot:
        return QLatin1String("slot");
    default:
        return QLatin1String("method");
    }
}

QLatin1String accessWord(QMetaMethod::Access access)
{
    switch (access) {
    case QMetaMethod::Private:
        return QLatin1String("private");
    case QMetaMethod::Protected:
        return QLatin1String("protected");
    case QMetaMethod::Public:
        return QLatin1String("public");
    }
    return QLatin1String("<unknown>");
}

Accesses &accessesOf(struMethods &methods, QMetaMethod::MethodType type)
{
    if (type == QMetaMethod::Signal)
        return methods.signalMethods;
    return type == QMetaMethod::Slot ? methods.slotMethods : methods.methods;
}

struMethods collectMethods(const QMetaObject *object)
{
    struMethods methods;
    for (int index = 0; index < object->methodCount(); ++index) {
        const QMetaMethod method = object->method(index);
        accessesOf(methods, method.methodType()).insert(method.methodSignature(), method.access());
    }
    return methods;
}

/** Reports what is wrong with one method of the interface. @return false if the object lacks it. */
bool checkMethod(const QMetaMethod &method, const Accesses &present)
{
    const QLatin1String kind = kindWord(method.methodType());
    const QString signature = QString::fromLatin1(method.methodSignature());
    const auto found = present.constFind(method.methodSignature());
    if (found == present.cend()) {
        PYXTraceWrapper::staticTraceError(accessWord(method.access()) + QLatin1Char(' ') + kind +
                                              QLatin1String(" '") + signature +
                                              QLatin1String("' is missing from interface"),
                                          TraceFile, __LINE__);
        return false;
    }
    if (*found != method.access()) {
        PYXTraceWrapper::staticTraceWarn(kind + QLatin1String(" '") + signature +
                                             QLatin1String("' has wrong access specifier '") +
                                             accessWord(*found) + QLatin1String("' : expected '") +
                                             accessWord(method.access()) + QLatin1Char('\''),
                                         TraceFile, __LINE__);
    }
    return true;
}

} // namespace

bool PYXMetaObjectHelpers::checkInherits(const QMetaObject *obj, const QMetaObject *iface)
{
    if (iface == nullptr)
        return false;
    for (const QMetaObject *candidate = obj; candidate != nullptr; candidate = candidate->superClass()) {
        if (candidate == iface || std::strcmp(candidate->className(), iface->className()) == 0)
            return true;
    }
    return false;
}

bool PYXMetaObjectHelpers::checkInterfaceCompatibility(const QMetaObject *obj, const QMetaObject *iface)
{
    if (obj == nullptr || iface == nullptr)
        return false;
    if (checkInherits(obj, iface))
        return true;
    struMethods present = collectMethods(obj);
    bool bComplete = true;
    for (int index = 0; index < iface->methodCount(); ++index) {
        const QMetaMethod method = iface->method(index);
        if (!checkMethod(method, accessesOf(present, method.methodType())))
            bComplete = false;
    }
    return bComplete;
}

bool PYXMetaObjectHelpers::checkInterfaceCompatibility(const QObject *obj, const QMetaObject *iface)
{
    if (obj == nullptr || iface == nullptr)
        return false;
    return obj->inherits(iface->className()) || checkInterfaceCompatibility(obj->metaObject(), iface);
}

bool PYXMetaObjectHelpers::checkInterfaceCompatibility(const QObject *obj, const QObject *iface)
{
    return iface != nullptr && checkInterfaceCompatibility(obj, iface->metaObject());
}

} // namespace PYXRuntime
