// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_General_Paths.h"

#include "PageTexts.h"
#include "PYXBroker.h"
#include "PYXIApplicationInfo.h"
#include "PYXSettings.h"
#include "PYXStandardIcons.h"
#include "SharedPathSettings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace PYXRuntime {
namespace {

const QLatin1String PathsGroup("Paths");
const QLatin1String SavedGroup("SavedPaths");

QString withoutDecoration(QString label)
{
    label.remove(QLatin1Char('&'));
    return label.endsWith(QLatin1Char(':')) ? label.chopped(1) : label;
}

} // namespace

SHW_General_Paths::SHW_General_Paths(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_form(new QFormLayout(this))
{
    setObjectName(QStringLiteral("SHW_General_Paths"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Browse_For_Folder));
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    for (const auto &path :
         {SharedPathSettings::Collections, SharedPathSettings::DetectorProfiles, SharedPathSettings::Scripts})
        _add(path.key, QString(), sharedBinder());
    SHW_General_Paths::sl_retranslateUi();
}

SHW_General_Paths::~SHW_General_Paths() = default;

void SHW_General_Paths::addDirectory(const QString &key, const QString &label)
{
    _add(key, label, binder());
}

void SHW_General_Paths::setDirectoryLabel(const QString &key, const QString &label)
{
    for (const struDirectory &directory : m_directories) {
        if (directory.key != key)
            continue;
        directory.label->setText(label);
        _translate(directory);
    }
}

void SHW_General_Paths::_add(const QString &key, const QString &label, PYXSettingsBinder &binder)
{
    const struDirectory directory{key, new QLabel(label), new QLineEdit, new QPushButton};
    directory.label->setBuddy(directory.edit);
    directory.browse->setAutoDefault(false);
    auto *const row = new QHBoxLayout;
    row->addWidget(directory.edit, 1);
    row->addWidget(directory.browse);
    m_form->addRow(directory.label, row);
    connect(directory.browse, &QPushButton::clicked, this, [=] { _browse(directory.edit); });
    binder.bind(directory.edit, key);
    m_directories.push_back(directory);
    _translate(directory);
}

void SHW_General_Paths::_browse(QLineEdit *edit)
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Choose Directory"),
                                                             QDir::fromNativeSeparators(edit->text()));
    if (!chosen.isEmpty())
        edit->setText(chosen);
}

bool SHW_General_Paths::verifyContents(QStringList &errors)
{
    const int before = errors.size();
    for (const struDirectory &directory : m_directories) {
        const QString path = directory.edit->text(); // as it will be stored
        const QString name = withoutDecoration(directory.label->text()).toHtmlEscaped();
        if (path.isEmpty())
            continue; // nothing is chosen
        const QFileInfo place(path);
        if (place.isRelative())
            errors += tr("%1: \"%2\" is no complete path.").arg(name, path.toHtmlEscaped());
        else if (place.exists() && !place.isDir())
            errors += tr("%1: \"%2\" is a file, not a directory.").arg(name, path.toHtmlEscaped());
    }
    return errors.size() == before;
}

bool SHW_General_Paths::applyChanges()
{
    PYXBoundSettingsWidget::applyChanges();
    for (PYXSettings *const store : {settings(), sharedSettings()}) {
        if (store != nullptr)
            store->sync(); // what compares the copies opens the stores itself
    }
    QStringList userKeys;
    QStringList sharedKeys;
    if (PYXSettings::diffUserAndSharedSubTreesForPaths_handleShared(PathsGroup, SavedGroup, userKeys,
                                                                    sharedKeys)) {
        PYXSettings::cloneUserAndSharedSubTreesForPaths(PathsGroup, SavedGroup);
        Q_EMIT si_pathsChanged(userKeys, sharedKeys);
    }
    return true;
}

void SHW_General_Paths::initContents()
{
    // Who asks first for a shared directory has the defaults written, which the page is to show.
    if (auto *const info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>())
        info->getSpecialDirPath(SharedPathSettings::Collections.specialDir, false);
    PYXSettings::cloneUserAndSharedSubTreesForPaths(PathsGroup, SavedGroup);
    PYXBoundSettingsWidget::initContents();
}

void SHW_General_Paths::_translate(const struDirectory &directory) const
{
    const QString name = withoutDecoration(directory.label->text());
    directory.edit->setToolTip(tr("The directory for: %1").arg(name));
    directory.browse->setText(tr("Browse..."));
    directory.browse->setToolTip(tr("Chooses the directory for: %1").arg(name));
    directory.browse->setAccessibleName(directory.browse->toolTip());
}

void SHW_General_Paths::sl_retranslateUi()
{
    setHeading(PageTexts::general(), tr("Paths"));
    setDirectoryLabel(SharedPathSettings::Collections.key, tr("&Collections:"));
    setDirectoryLabel(SharedPathSettings::DetectorProfiles.key, tr("&Detector profiles:"));
    setDirectoryLabel(SharedPathSettings::Scripts.key, tr("&Scripts:"));
    for (const struDirectory &directory : m_directories)
        _translate(directory);
}

} // namespace PYXRuntime
