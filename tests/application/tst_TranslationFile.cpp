// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QmBytes.h"
#include "QmFile.h"
#include "TranslationFile.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

/** Looks up what is in the file and what is not, as it may be called for. */
void lookUp(const QTranslator &translator)
{
    for (const char *context : {"Context", "Other", ""}) {
        for (const char *source : {"Open", "%n file(s)", "Gone", ""}) {
            for (const int count : {-1, 0, 1, 2, 1000})
                translator.translate(context, source, "comment", count);
        }
    }
}

/** Takes the bytes the way a file's are taken. @return whether they were accepted */
bool tryBytes(const QByteArray &bytes)
{
    // On the heap without spare room, so that a byte too many is seen by the sanitizers.
    const std::optional<struQmFile> file = checkedQmFile(QByteArray(bytes.constData(), bytes.size()));
    if (!file)
        return false;
    QTranslator translator;
    if (translator.load(reinterpret_cast<const uchar *>(file->content.constData()), file->content.size()))
        lookUp(translator);
    return true;
}

/** A small file with a section of each kind. */
QByteArray sample()
{
    QmBytes file;
    file.add("Context", "Open", QString::fromUtf8("Öffnen"));
    file.add("Context", "%n file(s)", "%n Dateien", "comment");
    const QByteArray rules = QByteArray::fromHex("0101"); // n == 1
    // Two slots that lead to one chain of a single name.
    const QByteArray contexts = QByteArray::fromHex("0002") + QByteArray::fromHex("00010001") +
                                QByteArray(2, '\0') + "\7Context" + QByteArray(2, '\0');
    return file.bytes() + QmBytes::section(0x2f, contexts) + QmBytes::section(0x88, rules) +
           QmBytes::section(0xa7, "de");
}

} // namespace

class tst_TranslationFile : public QObject
{
    Q_OBJECT
private slots:
    void findsFilesAsQtDoes_data();
    void findsFilesAsQtDoes();
    void agreesWithQt();
    void damagedFiles();
    void lyingFiles_data();
    void lyingFiles();
    void dependencies();
    void survivesItsFile();
};

void tst_TranslationFile::findsFilesAsQtDoes_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("locale");
    for (const QString file : {"S_de.qm", "S_de", "S_de_AT.qm", "S.qm", "S", "S_fr.qm", "S_de.qm.qm"}) {
        for (const QString locale : {"de", "de_AT", "de.x", "", "../S_de"})
            QTest::newRow(qPrintable(file + " for " + locale)) << file << locale;
    }
}

void tst_TranslationFile::findsFilesAsQtDoes()
{
    QFETCH(QString, file);
    QFETCH(QString, locale);
    const QTemporaryDir directory;
    QmBytes content;
    content.add("C", "s", "found");
    content.write(directory.filePath(file));
    QTranslator qt;
    QCOMPARE(TranslationFile::open("S", locale, directory.path()) != nullptr,
             qt.load("S_" + locale, directory.path()));
}

void tst_TranslationFile::agreesWithQt()
{
    const QDir built(QCoreApplication::applicationDirPath() + "/translations");
    for (const QString stem : {"qt", "PYXRuntime"}) {
        QTranslator qt;
        QVERIFY(qt.load(stem + "_de", built.path()));
        const auto ours = TranslationFile::open(stem, "de", built.path());
        QVERIFY(ours != nullptr && !ours->isEmpty());
        for (const char *source : {"Cancel", "%n byte(s) could not be written.", "Gone"}) {
            for (const char *context : {"QPlatformTheme", "PYXRuntime::PYXCountingFileSet"})
                QCOMPARE(ours->translate(context, source, nullptr, 2),
                         qt.translate(context, source, nullptr, 2));
        }
    }
}

void tst_TranslationFile::damagedFiles()
{
    const QByteArray whole = sample();
    QVERIFY(tryBytes(whole));
    QTranslator translator;
    QVERIFY(translator.load(reinterpret_cast<const uchar *>(whole.constData()), whole.size()));
    QCOMPARE(translator.translate("Context", "%n file(s)", "comment", 1), QString("%n Dateien"));
    // A file may end early only where a section ends.
    int accepted = 0;
    for (int size = 0; size < whole.size(); ++size)
        accepted += tryBytes(whole.left(size)) ? 1 : 0;
    QVERIFY2(accepted < 35, qPrintable(QString::number(accepted)));
    for (int i = 0; i < whole.size(); ++i) {
        for (const int value : {0x00, 0x01, 0x03, 0x7f, 0x80, 0xfe, 0xff}) {
            QByteArray bytes = whole;
            bytes[i] = char(value);
            tryBytes(bytes);
        }
    }
    QRandomGenerator random(7);
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes(int(random.bounded(300)), Qt::Uninitialized);
        for (char &byte : bytes)
            byte = char(random.bounded(256));
        QVERIFY(!tryBytes(bytes));
        tryBytes(whole.left(16 + int(random.bounded(100))) + bytes);
    }
}

void tst_TranslationFile::lyingFiles_data()
{
    const QByteArray magic = sample().left(16);
    const auto hashes = [](const char *offset) {
        return QmBytes::section(0x42, QByteArray::fromHex("00000001") + QByteArray::fromHex(offset));
    };
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("offset behind the messages")
        << magic + hashes("00000100") + QmBytes::section(0x69, QByteArray(8, '\1'));
    QTest::newRow("half a hash") << magic + QmBytes::section(0x42, QByteArray(5, '\0')) +
                                        QmBytes::section(0x69, QByteArray(8, '\1'));
    QTest::newRow("translation of 2 GiB")
        << magic + hashes("00000000") + QmBytes::section(0x69, QByteArray::fromHex("037ffffffe0041"));
    QTest::newRow("translation that leads back") // Qt would never come to its end
        << magic + hashes("00000000") + QmBytes::section(0x69, QByteArray::fromHex("03fffffffb004101"));
    QTest::newRow("message without end")
        << magic + hashes("00000000") + QmBytes::section(0x69, QByteArray::fromHex("03000000020041"));
    QTest::newRow("contexts in a table of none") << magic + QmBytes::section(0x2f, QByteArray(4, '\0'));
    QTest::newRow("contexts without end")
        << magic + QmBytes::section(0x2f, QByteArray::fromHex("00010001000007") + "Con");
    QTest::newRow("a section twice") << magic + QmBytes::section(0xa7, "de") + QmBytes::section(0xa7, "de");
    QByteArray many;
    for (quint8 i = 0; i < 250; ++i) // every byte begins a message that goes to the end
        many += QByteArray::fromHex("00000001000000") + char(i);
    QTest::newRow("overlapping messages")
        << magic + QmBytes::section(0x42, many) + QmBytes::section(0x69, QByteArray(1250, '\5') + '\1');
}

void tst_TranslationFile::lyingFiles()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!checkedQmFile(bytes));
}

void tst_TranslationFile::dependencies()
{
    const QTemporaryDir directory;
    const auto write = [&](const QString &name, const QStringList &files) {
        QmBytes file;
        if (files.isEmpty())
            file.add("C", "s", name);
        file.dependOn(files);
        file.write(directory.filePath(name + ".qm"));
    };
    write("a_de", {});
    write("S_de", {"a_de"});
    write("S_fr", {"a_de", "gone"});
    write("S_it", {"S_it"}); // itself
    const auto german = TranslationFile::open("S", "de", directory.path());
    QVERIFY(german != nullptr && !german->isEmpty());
    QCOMPARE(german->translate("C", "s", nullptr, -1), QString("a_de"));
    for (const char *locale : {"fr", "it"})
        QVERIFY(TranslationFile::open("S", locale, directory.path()) == nullptr);
}

void tst_TranslationFile::survivesItsFile()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("S_de.qm");
    QmBytes content;
    content.add("C", "s", "found");
    content.write(path);
    const auto file = TranslationFile::open("S", "de", directory.path());
    QVERIFY(QFile::resize(path, 0)); // as an update in place would
    QCOMPARE(file->translate("C", "s", nullptr, -1), QString("found"));
}

QTEST_GUILESS_MAIN(tst_TranslationFile)
#include "tst_TranslationFile.moc"
