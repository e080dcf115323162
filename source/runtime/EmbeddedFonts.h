// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

namespace PYXRuntime {

/**
 * The corporate fonts among the library's resources, and what they do to the application's fonts.
 * Main thread. Does nothing where there is no QGuiApplication.
 */
class EmbeddedFonts final
{
public:
    /** Loads every font, for the library's own need or on demand of the application. */
    void load();
    void loadOnDemand();
    void unload();
    void unloadIfOnDemand();

    /** Makes the normal or the condensed family the substitute of the system's dialog fonts. */
    void insertSubstitutions(bool condensed);
    /** Takes back the substitutions that are ours. */
    void removeSubstitutions();

    /** Gives the application font the family that substitutes its own, if there is one. */
    void applyToApplicationFont();
    /** Gives the application font its own family back, unless somebody has changed it meanwhile. */
    void restoreApplicationFont();

private:
    QHash<QString, int> m_ids; ///< resource path to application font id, -1 where it could not be loaded
    bool m_bLoadedOnDemand = false;
    QHash<QString, QString> m_substitutions; ///< inserted by us: family to substitute
    QString m_originalFamily;
    QString m_appliedFamily;
};

} // namespace PYXRuntime
