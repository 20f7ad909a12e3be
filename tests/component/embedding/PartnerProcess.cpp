#include "PartnerProcess.h"

#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <algorithm>

PartnerProcess::PartnerProcess(const QString& side, const QString& scale) : m_side(side)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("QT_SCALE_FACTOR", scale);
    m_process.setProcessEnvironment(environment);
    m_process.start(EMBEDDING_PARTNER, {side});
    EXPECT_TRUE(m_process.waitForStarted());
}

PartnerProcess::~PartnerProcess()
{
    m_process.closeWriteChannel();
    if (IsRunning() && !m_process.waitForFinished(5000))
        ADD_FAILURE() << m_side.toStdString() << " did not end by itself";
}

void PartnerProcess::Tell(const QString& command)
{
    m_process.write(command.toUtf8() + '\n');
    m_process.waitForBytesWritten();
}

void PartnerProcess::Read()
{
    m_process.waitForReadyRead(1);
    while (m_process.canReadLine())
        m_lines += QString::fromUtf8(m_process.readLine()).chopped(1);
}

QString PartnerProcess::Await(const QString& start)
{
    QString rest;
    const bool came = WaitUntil([&] {
        Read();
        while (m_next < m_lines.size()) {
            const QString& line = m_lines[m_next++];
            if (!line.startsWith(start))
                continue;
            rest = line.mid(start.size());
            return true;
        }
        return false;
    });
    EXPECT_TRUE(came) << m_side.toStdString() << " did not say '" << start.toStdString() << "'; it said:\n"
                      << m_lines.join('\n').toStdString();
    return rest;
}

int PartnerProcess::Count(const QString& start)
{
    Read();
    return static_cast<int>(std::count_if(m_lines.begin(), m_lines.end(),
                                          [&](const QString& line) { return line.startsWith(start); }));
}

void PartnerProcess::Kill()
{
    m_process.kill();
    m_process.waitForFinished();
}
