// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "WavReader.h"

#include <PYXTraceWrapper.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QtEndian>

#include <algorithm>
#include <cmath>

namespace BandMonitor {
namespace {

const char TraceFile[] = "bandmonitor\\WavReader";

// Larger values are no samples; their squares would not fit into a float.
constexpr double LargestSample = 1e9;

float usable(double value)
{
    return std::isfinite(value) ? float(std::clamp(value, -LargestSample, LargestSample)) : 0.0F;
}

float pcmValue(const char *bytes, int bits)
{
    switch (bits) {
    case 8:
        return (float(quint8(*bytes)) - 128.0F) / 128.0F;
    case 16:
        return float(qFromLittleEndian<qint16>(bytes)) / 32768.0F;
    case 24: {
        const quint32 low = qFromLittleEndian<quint16>(bytes);
        return float(qint32(low | quint32(qint8(bytes[2])) << 16)) / 8388608.0F;
    }
    default:
        return float(qFromLittleEndian<qint32>(bytes)) / 2147483648.0F;
    }
}

float floatValue(const char *bytes, int bits)
{
    return usable(bits == 32 ? double(qFromLittleEndian<float>(bytes)) : qFromLittleEndian<double>(bytes));
}

} // namespace

WavReader::WavReader(const QString &path)
    : m_file(path)
{}

std::unique_ptr<WavReader> WavReader::open(const QString &path, QString *error)
{
    std::unique_ptr<WavReader> reader(new WavReader(path));
    if (!reader->_openFile(error))
        return nullptr;
    const WavHeader &header = reader->m_header;
    if (header.isCutShort())
        PYXRuntime::PYXTraceWrapper::staticTraceWarn(
            tr("\"%1\" ends before its header says, %2 samples are left")
                .arg(QDir::toNativeSeparators(path), QString::number(header.frames())),
            TraceFile, __LINE__);
    return reader;
}

bool WavReader::_openFile(QString *error)
{
    const QString shownPath = QDir::toNativeSeparators(m_file.fileName());
    const QFileInfo info(m_file);
    // A pipe or a device has no length, and could keep us waiting.
    if (info.exists() && !info.isFile()) {
        *error = tr("\"%1\" is not a file.").arg(shownPath);
    } else if (!m_file.open(QIODevice::ReadOnly)) {
        *error = tr("\"%1\" cannot be opened: %2.").arg(shownPath, m_file.errorString());
    } else if (!m_header.read(m_file)) {
        *error = tr("\"%1\" %2.").arg(shownPath, m_header.errorString());
    } else {
        m_framesLeft = m_header.frames();
        return m_file.seek(m_header.dataStart());
    }
    return false;
}

QString WavReader::name() const
{
    return QFileInfo(m_file).fileName();
}

QString WavReader::coding() const
{
    const int bits = m_header.bitsPerSample();
    return m_header.isFloat() ? tr("%1 bit float").arg(bits) : tr("%1 bit").arg(bits);
}

std::size_t WavReader::read(Sample *samples, std::size_t count)
{
    const int frameSize = m_header.bytesPerFrame();
    const qint64 wanted = std::min(qint64(count), m_framesLeft);
    m_buffer.resize(int(wanted) * frameSize);
    const qint64 bytes = m_file.read(m_buffer.data(), m_buffer.size());
    const auto frames = std::size_t(std::max<qint64>(bytes, 0) / frameSize);
    // A file that shrinks while it is read is at its end.
    m_framesLeft = qint64(frames) < wanted ? 0 : m_framesLeft - wanted;

    const int bits = m_header.bitsPerSample();
    const auto value = m_header.isFloat() ? floatValue : pcmValue;
    const char *frame = m_buffer.constData();
    for (std::size_t i = 0; i < frames; ++i, frame += frameSize)
        samples[i] = {value(frame, bits), isComplex() ? value(frame + bits / 8, bits) : 0.0F};
    return frames;
}

} // namespace BandMonitor
