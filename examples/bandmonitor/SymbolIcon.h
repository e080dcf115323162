// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGui/QIcon>

namespace BandMonitor {

enum eSymbol { ekSymbol_Open, ekSymbol_OwnBand, ekSymbol_Play, ekSymbol_Pause, ekSymbol_Record };

/** A plain icon that is drawn in the colour of the text beside it, whatever the palette is then. */
QIcon symbolIcon(eSymbol symbol);

} // namespace BandMonitor
