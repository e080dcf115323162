// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QmBytes.h"
#include "QmFile.h"
#include "TranslationFile.h"

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
    void findsFilesAsQtDoes();
    void agreesWithQt();
    void damagedFiles();
    void lyingFiles();
    void dependencies();
    void survivesItsFile();
};

void tst_TranslationFile::findsFilesAsQtDoes()
{
    for (const QString file : {"S_de.qm", "S_de", "S_de_AT.qm", "S.qm", "S", "S_fr.qm", "S_de.qm.qm"}) {
        const QTemporaryDir directory;
        QmBytes content;
        content.add("C", "s", "found");
        content.write(directory.filePath(file));
        for (const QString locale : {"de", "de_AT", "de.x", "", "../S_de"}) {
            QTranslator qt;
            QVERIFY2((TranslationFile::open("S", locale, directory.path()) != nullptr) ==
                         qt.load("S_" + locale, directory.path()),
                     qPrintable(file + " for " + locale));
        }
    }
}

void tst_TranslationFile::agreesWithQt()
{
    const QDir built(QCoreApplication::applicationDirPath() + "/translations");
    for (const QString file : {"qt de", "qt fr", "PYXRuntime de", "PYXRuntime fr"}) {
        const QString stem = file.section(' ', 0, 0);
        const QString locale = file.section(' ', 1);
        QTranslator qt;
        QVERIFY(qt.load(stem + '_' + locale, built.path()));
        const auto ours = TranslationFile::open(stem, locale, built.path());
        QVERIFY(ours != nullptr && !ours->isEmpty());
        for (const char *source : {"Cancel", "%n byte(s) could not be written.", "Gone"}) {
            for (const char *context : {"QPlatformTheme", "PYXRuntime::PYXCountingFileSet"})
                QCOMPARE(ours->translate(context, source, nullptr, 2),
                         qt.translate(context, source, nullptr, 2));
        }
        const bool bQt = stem == "qt";
        QVERIFY(!ours->translate(bQt ? "QPlatformTheme" : "PYXRuntime::PYXCountingFileSet",
                                 bQt ? "Cancel" : "%n byte(s) could not be written.", nullptr, 1)
                     .isEmpty());
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

void tst_TranslationFile::lyingFiles()
{
    const QByteArray magic = sample().left(16);
    const auto message = [&magic](const char *offset, const QByteArray &content) {
        return magic + QmBytes::section(0x42, QByteArray::fromHex("00000001") + QByteArray::fromHex(offset)) +
               QmBytes::section(0x69, content);
    };
    const auto hex = &QByteArray::fromHex;
    QByteArray many;
    for (quint8 i = 0; i < 250; ++i) // every byte begins a message that goes to the end
        many += hex("00000001000000") + char(i);
    const std::pair<const char *, QByteArray> files[] = {
        {"offset behind the messages", message("00000100", QByteArray(8, '\1'))},
        {"half a hash",
         magic + QmBytes::section(0x42, "12345") + QmBytes::section(0x69, QByteArray(8, '\1'))},
        {"translation of 2 GiB", message("00000000", hex("037ffffffe0041"))},
        {"translation that leads back", message("00000000", hex("03fffffffb004101"))}, // Qt would never end
        {"message without end", message("00000000", hex("03000000020041"))},
        {"contexts in a table of none", magic + QmBytes::section(0x2f, QByteArray(4, '\0'))},
        {"contexts without end", magic + QmBytes::section(0x2f, hex("00010001000007") + "Con")},
        {"a section twice", magic + QmBytes::section(0xa7, "de") + QmBytes::section(0xa7, "de")},
        {"overlapping messages",
         magic + QmBytes::section(0x42, many) + QmBytes::section(0x69, QByteArray(1250, '\5') + '\1')}};
    for (const auto &[name, bytes] : files)
        QVERIFY2(!checkedQmFile(bytes), name);
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
