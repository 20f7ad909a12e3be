#pragma once

#include <QProcess>
#include <QStringList>

#include <string>

/// A host or guest program that a test drives.
class PartnerProcess
{
public:
    /// The scale factor is Qt's for the whole program.
    PartnerProcess(const QString& side, const QString& scale);
    ~PartnerProcess();

    void Tell(const QString& command);

    /// The rest of the next line that starts so, after all that was waited for before; a test failure and an
    /// empty text when none comes.
    QString Await(const QString& start);
    quint32 AwaitWindow() { return Await("window ").toUInt(); }

    /// How many lines so far start so.
    int Count(const QString& start);

    void Kill();
    bool IsRunning() const { return m_process.state() == QProcess::Running; }

    /// What the program complained about, such as errors of the X server.
    std::string Complaints() { return m_process.readAllStandardError().toStdString(); }

private:
    void Read();

    QProcess m_process;
    QString m_side;
    QStringList m_lines;
    int m_next = 0;
};
