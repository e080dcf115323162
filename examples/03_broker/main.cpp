// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// A module finds the interface of another one that it does not know.
#include <PYXBroker.h>
#include <PYXBrokerRegistration.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QTextStream>

#include <memory>

using namespace PYXRuntime;

// The interface, in a header that both modules include.
class IDemodulator
{
public:
    virtual ~IDemodulator() = default;
    virtual QString mode() const = 0;
};
Q_DECLARE_INTERFACE(IDemodulator, "com.example.IDemodulator/1.0")
PYX_DECLARE_BROKER_INTERFACE(IDemodulator, QUuid("{6f1c2a34-58d0-4c0b-9d51-0a7f3e21b9c4}"))

// The provider: registered as long as it lives.
class Demodulator : public QObject, public IDemodulator
{
    Q_OBJECT
    Q_INTERFACES(IDemodulator)
public:
    explicit Demodulator(const QString &mode)
        : m_mode(mode)
    {}
    QString mode() const override { return m_mode; }

private:
    const QString m_mode;
    PYXBrokerRegistration m_registration{PYXBrokerInterface<IDemodulator>::id(), 0, this};
};

// The consumer: asks whenever it needs one, and keeps no pointer.
static QString whoDemodulates()
{
    if (auto *demodulator = PYXBroker::getInstance()->topObject<IDemodulator>())
        return demodulator->mode();
    return "nobody demodulates";
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("03 Broker");
    initialize_PYXRuntime();

    QStringList answers{whoDemodulates()};
    auto fm = std::make_unique<Demodulator>("FM");
    answers += whoDemodulates();
    auto am = std::make_unique<Demodulator>("AM"); // hides the one before
    answers += whoDemodulates();
    am.reset();
    answers += whoDemodulates() + " again";
    fm.reset();
    answers += whoDemodulates();

    QTextStream(stdout) << answers.join('\n') << '\n';
    uninitialize_PYXRuntime();
    return answers == QStringList{"nobody demodulates", "FM", "AM", "FM again", "nobody demodulates"} ? 0 : 1;
}

#include "main.moc"
