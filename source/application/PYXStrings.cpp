// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStrings.h"

#include "PYXStringPool.h"
#include "SharedTexts.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaEnum>

namespace PYXStrings {
namespace {

struct struSharedText
{
    eText id;
    const char *text;
};

constexpr struSharedText SharedTexts[] = {
    {ekText_Frequency, QT_TRANSLATE_NOOP("PYXStrings", "Frequency")},
    {ekText_CentreFrequency, QT_TRANSLATE_NOOP("PYXStrings", "Centre frequency")},
    {ekText_Bandwidth, QT_TRANSLATE_NOOP("PYXStrings", "Bandwidth")},
    {ekText_SampleRate, QT_TRANSLATE_NOOP("PYXStrings", "Sample rate")},
    {ekText_Level, QT_TRANSLATE_NOOP("PYXStrings", "Level")},
    {ekText_Noise, QT_TRANSLATE_NOOP("PYXStrings", "Noise")},
    {ekText_SignalToNoise, QT_TRANSLATE_NOOP("PYXStrings", "Signal-to-noise ratio")},
    {ekText_Modulation, QT_TRANSLATE_NOOP("PYXStrings", "Modulation")},
    {ekText_Duration, QT_TRANSLATE_NOOP("PYXStrings", "Duration")},
    {ekText_Date, QT_TRANSLATE_NOOP("PYXStrings", "Date")},
    {ekText_Time, QT_TRANSLATE_NOOP("PYXStrings", "Time")},
    {ekText_StartTime, QT_TRANSLATE_NOOP("PYXStrings", "Start time")},
    {ekText_EndTime, QT_TRANSLATE_NOOP("PYXStrings", "End time")},
    {ekText_Name, QT_TRANSLATE_NOOP("PYXStrings", "Name")},
    {ekText_Type, QT_TRANSLATE_NOOP("PYXStrings", "Type")},
    {ekText_State, QT_TRANSLATE_NOOP("PYXStrings", "State")},
    {ekText_Description, QT_TRANSLATE_NOOP("PYXStrings", "Description")},
    {ekText_Version, QT_TRANSLATE_NOOP("PYXStrings", "Version")},
    {ekText_Size, QT_TRANSLATE_NOOP("PYXStrings", "Size")},
    {ekText_Address, QT_TRANSLATE_NOOP("PYXStrings", "Address")},
    {ekText_Port, QT_TRANSLATE_NOOP("PYXStrings", "Port")},
    {ekText_File, QT_TRANSLATE_NOOP("PYXStrings", "File")},
    {ekText_Folder, QT_TRANSLATE_NOOP("PYXStrings", "Folder")},
    {ekText_AllFiles, QT_TRANSLATE_NOOP("PYXStrings", "All files")},
    {ekText_Information, QT_TRANSLATE_NOOP("PYXStrings", "Information")},
    {ekText_Warning, QT_TRANSLATE_NOOP("PYXStrings", "Warning")},
    {ekText_Error, QT_TRANSLATE_NOOP("PYXStrings", "Error")},
    {ekText_On, QT_TRANSLATE_NOOP("PYXStrings", "On")},
    {ekText_Off, QT_TRANSLATE_NOOP("PYXStrings", "Off")},
    {ekText_Enabled, QT_TRANSLATE_NOOP("PYXStrings", "Enabled")},
    {ekText_Disabled, QT_TRANSLATE_NOOP("PYXStrings", "Disabled")},
    {ekText_Connected, QT_TRANSLATE_NOOP("PYXStrings", "Connected")},
    {ekText_Disconnected, QT_TRANSLATE_NOOP("PYXStrings", "Disconnected")},
    {ekText_None, QT_TRANSLATE_NOOP("PYXStrings", "None")},
    {ekText_Unknown, QT_TRANSLATE_NOOP("PYXStrings", "Unknown")},
    {ekText_Default, QT_TRANSLATE_NOOP("PYXStrings", "Default")},
};

} // namespace

QString text(eText text)
{
    return PYXRuntime::PYXStringPool::text(key(text));
}

QString key(eText text)
{
    return QLatin1String("PYXStrings::") + QLatin1String(QMetaEnum::fromType<eText>().valueToKey(text));
}

} // namespace PYXStrings

namespace PYXRuntime {

void addSharedTexts(QHash<QString, QString> &texts)
{
    for (const auto &shared : PYXStrings::SharedTexts)
        texts.insert(PYXStrings::key(shared.id), QCoreApplication::translate("PYXStrings", shared.text));
}

} // namespace PYXRuntime
