// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QObject>
#include <QtCore/QString>

/**
 * The texts that all applications of the family share, so that one thing has one name everywhere:
 * @code
 * label->setText(PYXStrings::text(PYXStrings::ekText_Bandwidth));
 * @endcode
 * Any thread. The texts come from PYXRuntime::PYXStringPool, in the current language.
 */
namespace PYXStrings {
Q_NAMESPACE_EXPORT(PYXRUNTIME_EXPORT)

enum eText {
    // what is measured
    ekText_Frequency,
    ekText_CentreFrequency,
    ekText_Bandwidth,
    ekText_SampleRate,
    ekText_Level,
    ekText_Noise,
    ekText_SignalToNoise,
    ekText_Modulation,
    ekText_Duration,
    ekText_Date,
    ekText_Time,
    ekText_StartTime,
    ekText_EndTime,
    // what there is
    ekText_Name,
    ekText_Type,
    ekText_State,
    ekText_Description,
    ekText_Version,
    ekText_Size,
    ekText_Address,
    ekText_Port,
    ekText_File,
    ekText_Folder,
    ekText_AllFiles,
    // how it is
    ekText_Information,
    ekText_Warning,
    ekText_Error,
    ekText_On,
    ekText_Off,
    ekText_Enabled,
    ekText_Disabled,
    ekText_Connected,
    ekText_Disconnected,
    ekText_None,
    ekText_Unknown,
    ekText_Default
};
Q_ENUM_NS(eText)

PYXRUNTIME_EXPORT QString text(eText text);
/** The key of the text in the pool, e.g. "PYXStrings::ekText_Frequency". */
PYXRUNTIME_EXPORT QString key(eText text);

} // namespace PYXStrings
