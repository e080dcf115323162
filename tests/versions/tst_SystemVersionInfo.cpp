// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Windows only: our reader and the system's say the same, for the libraries and programs of the system and
// for files made with several languages.

#include "PeBytes.h"
#include "PYXFixedFileInfo.h"
#include "pyxruntime_version.h"
#include "PYXWinResVersion.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using PYXRuntime::PYXWinResVersion;

namespace {

const char *const Names[] = {"Comments",       "CompanyName",    "FileDescription", "FileVersion",
                             "InternalName",   "LegalCopyright", "LegalTrademarks", "OriginalFilename",
                             "PrivateBuild",   "ProductName",    "ProductVersion",  "SpecialBuild",
                             "productversion", "NoSuchName"};

const wchar_t *wideText(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

/** What the system says about one file, as texts. */
class SystemAnswer
{
public:
    explicit SystemAnswer(const QString &file)
    {
        const QString native = QDir::toNativeSeparators(file);
        DWORD handle = 0;
        m_block.resize(int(GetFileVersionInfoSizeW(wideText(native), &handle)));
        if (!m_block.isEmpty() &&
            GetFileVersionInfoW(wideText(native), 0, DWORD(m_block.size()), m_block.data()) == FALSE)
            m_block.clear();
    }

    bool isEmpty() const { return m_block.isEmpty(); }

    QByteArray value(const QString &path, int unit) const
    {
        void *data = nullptr;
        UINT size = 0;
        if (isEmpty() || VerQueryValueW(m_block.constData(), wideText(path), &data, &size) == FALSE)
            return QByteArray();
        return QByteArray(static_cast<const char *>(data), int(size) * unit);
    }

    QString text(const QString &path) const
    {
        const QByteArray bytes = value(path, 2);
        return QString::fromWCharArray(reinterpret_cast<const wchar_t *>(bytes.constData()), bytes.size() / 2)
            .section(QChar(0), 0, 0);
    }

private:
    QByteArray m_block;
};

/** @return how many texts are the same; -1 where anything differs. */
int sameTexts(const QString &file)
{
    const SystemAnswer system(file);
    const PYXWinResVersion own(file);
    QByteArray fixed = system.value("\\", 1);
    fixed.truncate(int(sizeof(VS_FIXEDFILEINFO)));
    const auto *const info = reinterpret_cast<const char *>(own.fixedFileInfo());
    const QByteArray pairs = system.value("\\VarFileInfo\\Translation", 1);
    if (own.didLoad() == system.isEmpty() || own.locales().size() != pairs.size() / 4 ||
        fixed != QByteArray(info, info == nullptr ? 0 : fixed.size()))
        return -1;
    int same = 0;
    for (int pair = 0; pair < pairs.size() / 4; ++pair) {
        const auto *const words = reinterpret_cast<const quint16 *>(pairs.constData()) + 2 * pair;
        const QString table = QString::asprintf("\\StringFileInfo\\%04x%04x\\", words[0], words[1]);
        for (const char *const name : Names) {
            const QString text = own.getString(own.locales().at(pair), name);
            if (text != system.text(table + name))
                return -1;
            same += text.isEmpty() ? 0 : 1;
        }
    }
    return same;
}

} // namespace

class tst_SystemVersionInfo : public QObject
{
    Q_OBJECT
private slots:
    void filesOfTheSystem();
    void filesOfSeveralLanguages_data();
    void filesOfSeveralLanguages();
    void thisLibrary();
};

void tst_SystemVersionInfo::filesOfTheSystem()
{
    const QDir directory(qEnvironmentVariable("SystemRoot", "C:/Windows") + "/system32");
    const QFileInfoList files = directory.entryInfoList({"*.dll", "*.exe", "*.cpl", "*.ocx"}, QDir::Files);
    int all = 0;
    for (const QFileInfo &file : files) {
        // Texts in a file of their own, which the system prefers.
        if (QFile::exists(file.path() + "/en-US/" + file.fileName() + ".mui"))
            continue;
        const int same = sameTexts(file.filePath());
        QVERIFY2(same >= 0, qPrintable(file.filePath()));
        all += same;
    }
    qInfo("%d texts of %d files compared", all, int(files.size()));
    QVERIFY(all > 0);
}

void tst_SystemVersionInfo::filesOfSeveralLanguages_data()
{
    QTest::addColumn<QVector<int>>("languages"); // ascending: the system bisects them
    QTest::newRow("neutral") << QVector<int>{0x0000, 0x0409, 0x0452};
    QTest::newRow("American English") << QVector<int>{0x0401, 0x0409, 0x0452};
    QTest::newRow("English of any kind") << QVector<int>{0x0009, 0x0452, 0x0809};
    QTest::newRow("foreign") << QVector<int>{0x0452, 0x0481};
}

void tst_SystemVersionInfo::filesOfSeveralLanguages()
{
    using namespace PeBytes;
    QFETCH(QVector<int>, languages);
    QVector<QPair<int, QByteArray>> versions;
    for (const int language : languages) {
        const QByteArray text = string("ProductVersion", QString("1.0.%1").arg(language));
        versions.append({language, versionInfo(fixedInfo({1, 2, 3, 4}), node("040904B0", true, 0, {}, text),
                                               numbers16({0x0409, 0x04B0}))});
    }
    const QTemporaryDir directory;
    QFile file(directory.filePath("sample.dll"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(PeBytes::file(true, resources(versions)));
    file.close();
    QCOMPARE(sameTexts(file.fileName()), 2); // by both spellings of its name
}

void tst_SystemVersionInfo::thisLibrary()
{
    const QString file = QCoreApplication::applicationDirPath() + "/PYXRuntime.dll";
    QVERIFY(sameTexts(file) > 0);
    PYXRuntime::PYXVersion fixed;
    QVERIFY(PYXWinResVersion(file).getFixedFileInfoVersion(PYXWinResVersion::ekFileVersion, fixed));
    QCOMPARE(fixed, PYXRuntime::PYXVersion(PYXRUNTIME_VERSION_STRING));
}

QTEST_GUILESS_MAIN(tst_SystemVersionInfo)
#include "tst_SystemVersionInfo.moc"
