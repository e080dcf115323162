// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXWinResVersion.h"

#include "LittleEndian.h"
#include "PeImage.h"
#include "Platform.h"
#include "PYXFixedFileInfo.h"
#include "PYXTraceWrapper.h"
#include "VersionNode.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace PYXRuntime {

struct struVersionData
{
    VersionNode root;
    QString standIn; // what a program without a version resource says of itself
    bool bHasFixedInfo = false;
    VS_FIXEDFILEINFO fixedInfo{};
    QList<PYXWinResVersion::LanguageCodePage> locales;
};

namespace {

constexpr const char *TraceFile = "source\\PYXWinResVersion";
const QLatin1String NoFixedInfo("PYXRuntime::WinVersionInfo::fixedFileInfo: VerQueryValue failed");
const QLatin1String NoLanguages("PYXRuntime::WinVersionInfo::languages: VerQueryValue failed");

const quint32 VersionType = 16;
const quint32 VersionId = 1;
const quint32 LargestBlock = 0xFFFF; // the block has its length in 16 bits
const quint16 NeutralLanguage = 0;
const quint16 AmericanEnglish = 0x0409;
const quint16 UnicodeCodePage = 0x04B0;
const quint32 FixedInfoSignature = 0xFEEF04BD;
const int FixedInfoSize = 52;

QLatin1String nameOf(PYXWinResVersion::eVersionType type)
{
    return QLatin1String(type == PYXWinResVersion::ekProductVersion ? "ProductVersion" : "FileVersion");
}

/** @return whether the file can be read and is one that may have a version resource. */
bool readBlock(const QString &filePath, QByteArray &block)
{
    QFile file(filePath);
    // Opening what is no file, a pipe, may wait for ever.
    if (!QFileInfo(filePath).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const PeImage image(file);
    const QVector<quint16> languages =
        QVector<quint16>{NeutralLanguage} + Platform::resourceLanguages() + QVector<quint16>{AmericanEnglish};
    block = image.resource(VersionType, VersionId, languages, LargestBlock);
    return image.isValid();
}

void readFixedInfo(struVersionData &data)
{
    const QByteArray bytes = data.root.value();
    data.bHasFixedInfo = bytes.size() >= FixedInfoSize;
    if (!data.bHasFixedInfo) {
        PYXTraceWrapper::staticTraceDebug(NoFixedInfo, TraceFile, __LINE__);
        return;
    }
    VS_FIXEDFILEINFO &info = data.fixedInfo;
    int offset = 0;
    for (auto *const field :
         {&info.dwSignature, &info.dwStrucVersion, &info.dwFileVersionMS, &info.dwFileVersionLS,
          &info.dwProductVersionMS, &info.dwProductVersionLS, &info.dwFileFlagsMask, &info.dwFileFlags,
          &info.dwFileOS, &info.dwFileType, &info.dwFileSubtype, &info.dwFileDateMS, &info.dwFileDateLS}) {
        *field = littleEndian<quint32>(bytes, offset);
        offset += int(sizeof(quint32));
    }
}

void readLocales(struVersionData &data)
{
    const QByteArray pairs =
        data.root.child(QStringLiteral("VarFileInfo")).child(QStringLiteral("Translation")).value();
    for (int pair = 0; pair + 4 <= pairs.size(); pair += 4)
        data.locales.append({littleEndian<quint16>(pairs, pair), littleEndian<quint16>(pairs, pair + 2)});
    if (data.locales.isEmpty())
        PYXTraceWrapper::staticTraceDebug(NoLanguages, TraceFile, __LINE__);
}

void standInForResource(struVersionData &data)
{
    data.standIn = QCoreApplication::applicationVersion();
    if (data.standIn.isEmpty())
        return;
    data.locales.append({NeutralLanguage, UnicodeCodePage});
    const PYXVersion version(data.standIn);
    data.bHasFixedInfo = version.isValid();
    data.fixedInfo.dwSignature = FixedInfoSignature;
    data.fixedInfo.dwFileVersionMS = data.fixedInfo.dwProductVersionMS = version.majorMinor();
    data.fixedInfo.dwFileVersionLS = data.fixedInfo.dwProductVersionLS = version.buildPriv();
}

// Qt warns when it is asked for the path too early.
QString runningProgram()
{
    return QCoreApplication::instance() != nullptr ? QCoreApplication::applicationFilePath() : QString();
}

} // namespace

PYXWinResVersion::PYXWinResVersion(const QString &filePath, QObject *parent)
    : QObject(parent)
    , m_filePath(filePath.isEmpty() ? runningProgram() : filePath)
    , m_bRunningProgram(m_filePath == runningProgram())
{}

PYXWinResVersion::~PYXWinResVersion() = default;

const struVersionData &PYXWinResVersion::_data() const
{
    if (!m_data.isNull())
        return *m_data;
    m_data.reset(new struVersionData);
    QByteArray block;
    const bool bImage = readBlock(m_filePath, block);
    m_data->root = VersionNode(block);
    if (m_data->root.isValid()) {
        readFixedInfo(*m_data);
        readLocales(*m_data);
    } else if (!bImage && m_bRunningProgram) {
        standInForResource(*m_data);
    }
    return *m_data;
}

bool PYXWinResVersion::didLoad() const
{
    return _data().root.isValid() || !_data().standIn.isEmpty();
}

const VS_FIXEDFILEINFO *PYXWinResVersion::fixedFileInfo() const
{
    return _data().bHasFixedInfo ? &_data().fixedInfo : nullptr;
}

QList<PYXWinResVersion::LanguageCodePage> PYXWinResVersion::locales() const
{
    return _data().locales;
}

QString PYXWinResVersion::getString(LanguageCodePage locale, const QString &name) const
{
    const struVersionData &data = _data();
    if (!data.standIn.isEmpty()) {
        const bool bVersion = name.compare(nameOf(ekFileVersion), Qt::CaseInsensitive) == 0 ||
                              name.compare(nameOf(ekProductVersion), Qt::CaseInsensitive) == 0;
        return bVersion && locale == data.locales.first() ? data.standIn : QString();
    }
    const QString table = QStringLiteral("%1%2")
                              .arg(locale.language, 4, 16, QLatin1Char('0'))
                              .arg(locale.codePage, 4, 16, QLatin1Char('0'));
    return data.root.child(QStringLiteral("StringFileInfo")).child(table).child(name).text();
}

QString PYXWinResVersion::getStringInFirstLanguage(const QString &name) const
{
    return _data().locales.isEmpty() ? QString() : getString(_data().locales.first(), name);
}

bool PYXWinResVersion::getFixedFileInfoVersion(eVersionType type, PYXVersion &version) const
{
    const VS_FIXEDFILEINFO *const info = fixedFileInfo();
    if (info == nullptr)
        return false;
    const bool bProduct = type == ekProductVersion;
    const quint64 high = bProduct ? info->dwProductVersionMS : info->dwFileVersionMS;
    const quint64 low = bProduct ? info->dwProductVersionLS : info->dwFileVersionLS;
    version = PYXVersion((high << 32) | low);
    return true;
}

bool PYXWinResVersion::getVersion(eVersionType type, quint16 &major, quint16 &minor, quint16 &build,
                                  quint16 &priv) const
{
    PYXVersion version;
    if (!getVersion(type, version))
        return false;
    version.components(major, minor, build, priv);
    return true;
}

bool PYXWinResVersion::getVersion(eVersionType type, QByteArray &text) const
{
    QString found;
    if (!getVersion(type, found))
        return false;
    text = found.toLatin1();
    return true;
}

bool PYXWinResVersion::getVersion(eVersionType type, PYXVersion &version) const
{
    return !_data().locales.isEmpty() && getVersion(type, _data().locales.first(), version);
}

bool PYXWinResVersion::getVersion(eVersionType type, QString &text) const
{
    return !_data().locales.isEmpty() && getVersion(type, _data().locales.first(), text);
}

bool PYXWinResVersion::getVersion(eVersionType type, LanguageCodePage locale, PYXVersion &version) const
{
    QString text;
    if (!getVersion(type, locale, text))
        return false;
    version.setVersion(text);
    return version.isValid();
}

bool PYXWinResVersion::getVersion(eVersionType type, LanguageCodePage locale, QString &text) const
{
    const QString found = getString(locale, nameOf(type));
    if (found.isEmpty())
        return false;
    text = found;
    return true;
}

PYXVersion PYXWinResVersion::getPYXVersion(eVersionType type, bool *ok) const
{
    PYXVersion version;
    const bool bFound = getVersion(type, version);
    if (ok != nullptr)
        *ok = bFound;
    return bFound ? version : PYXVersion();
}

} // namespace PYXRuntime
