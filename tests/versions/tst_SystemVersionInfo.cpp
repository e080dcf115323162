// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Windows only: for the libraries and programs of the system, our reader and the system's say the same.

#include "PYXFixedFileInfo.h"
#include "PYXWinResVersion.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
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

} // namespace

class tst_SystemVersionInfo : public QObject
{
    Q_OBJECT
private slots:
    void saysWhatTheSystemSays();
};

void tst_SystemVersionInfo::saysWhatTheSystemSays()
{
    const QDir directory(qEnvironmentVariable("SystemRoot", "C:/Windows") + "/system32");
    const QFileInfoList files = directory.entryInfoList({"*.dll", "*.exe", "*.cpl", "*.ocx"}, QDir::Files);
    int compared = 0;
    for (const QFileInfo &file : files) {
        // Texts in a file of their own, which the system prefers.
        if (QFile::exists(file.path() + "/en-US/" + file.fileName() + ".mui"))
            continue;
        const SystemAnswer system(file.filePath());
        const PYXWinResVersion own(file.filePath());
        QVERIFY2(own.didLoad() == !system.isEmpty(), qPrintable(file.filePath()));
        QByteArray fixed = system.value("\\", 1);
        fixed.truncate(int(sizeof(VS_FIXEDFILEINFO)));
        const auto *const info = reinterpret_cast<const char *>(own.fixedFileInfo());
        QVERIFY2(fixed == QByteArray(info, info == nullptr ? 0 : fixed.size()), qPrintable(file.filePath()));
        const QByteArray pairs = system.value("\\VarFileInfo\\Translation", 1);
        QCOMPARE(own.locales().size(), pairs.size() / 4);
        for (int pair = 0; pair < pairs.size() / 4; ++pair) {
            const auto *const words = reinterpret_cast<const quint16 *>(pairs.constData()) + 2 * pair;
            QVERIFY(own.locales().at(pair) == (PYXWinResVersion::LanguageCodePage{words[0], words[1]}));
            const QString table = QString::asprintf("\\StringFileInfo\\%04x%04x\\", words[0], words[1]);
            for (const char *const name : Names) {
                const QString text = own.getString({words[0], words[1]}, name);
                QCOMPARE(text, system.text(table + name));
                compared += text.isEmpty() ? 0 : 1;
            }
        }
    }
    qInfo("%d texts of %d files compared", compared, int(files.size()));
    QVERIFY(compared > 0);
}

QTEST_GUILESS_MAIN(tst_SystemVersionInfo)
#include "tst_SystemVersionInfo.moc"
