#pragma once

#include <QtGlobal>

#include <string>
#include <vector>

/// Keeps what Qt's own log gets of warnings and worse while it lives. One at a time.
class CapturedQtLog
{
public:
    CapturedQtLog()
    {
        Lines().clear();
        m_former = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type != QtDebugMsg && type != QtInfoMsg)
                Lines().push_back(text.toStdString());
        });
    }
    ~CapturedQtLog() { qInstallMessageHandler(m_former); }

    static std::vector<std::string>& Lines()
    {
        static std::vector<std::string> lines;
        return lines;
    }

private:
    QtMessageHandler m_former;
};
