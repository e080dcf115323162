// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Where the program keeps what; and a program that wants some of it elsewhere.
#include <PYXApplicationInfoImpl.h>
#include <PYXBroker.h>
#include <PYXBrokerRegistration.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QTextStream>

using namespace PYXRuntime;

namespace {

/** Keeps the results of measurements under another name; all else is where the library has it. */
class ApplicationInfo : public PYXApplicationInfoImpl
{
public:
    QString getSpecialDirPath(uint code, bool create) override
    {
        if (code != eApplicationResultsDir)
            return PYXApplicationInfoImpl::getSpecialDirPath(code, create);
        QString path = getSpecialDirPath(eApplicationUserPublicDataBaseDir, false) + "/measurements";
        if (create)
            createPath(path);
        return path;
    }
};

/** Any module asks the broker; it need not know the class that answers. */
QString directory(PYXIApplicationInfo::eSpecialDir code)
{
    auto *info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    return info->getSpecialDirPath(code, true);
}

QString writeLog()
{
    QFile log(directory(PYXIApplicationInfo::eApplicationLogsDir) + "/today.txt");
    if (!log.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return log.errorString();
    QTextStream(&log) << QDateTime::currentDateTimeUtc().toString(Qt::ISODate) << " started\n";
    return "log written to " + log.fileName();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("05 Application");
    initialize_PYXRuntime();

    ApplicationInfo info;
    const PYXBrokerRegistration registration(PYXBrokerInterface<PYXIApplicationInfo>::id(), 0, &info);

    QTextStream(stdout) << writeLog() << "\nresults moved to "
                        << directory(PYXIApplicationInfo::eApplicationResultsDir) << '\n';
    uninitialize_PYXRuntime();
    return 0;
}
