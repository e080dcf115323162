// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/**
 * What instances of an application say to each other: a message, and the answer to it. All numbers are 32
 * bits wide, the highest byte first. A message is a mark, the version, the length of what follows, the number
 * of arguments, the arguments and the working directory, as QDataStream writes texts; an answer is a mark and
 * the answer. Any thread.
 */
namespace PYXRuntime::InstanceMessage {

struct struMessage
{
    QStringList arguments;
    QString workingDirectory;
};

/** More than the longest command line that a system takes. */
constexpr int LongestContent = 8 * 1024 * 1024;

/** @return empty if it would be too long. */
QByteArray encoded(const struMessage &message);

enum eState { ekIncomplete, ekComplete, ekMalformed };

/** Reads a message out of what has come so far; too much is malformed. */
eState decode(const QByteArray &bytes, struMessage &message);

enum eAnswer : quint32 { ekAnswer_Taken = 1, ekAnswer_Refused = 2 };

constexpr int AnswerSize = 8;
QByteArray encoded(eAnswer answer);
/** Whatever is no answer of this version counts as refused. */
eAnswer decodedAnswer(const QByteArray &bytes);

} // namespace PYXRuntime::InstanceMessage
