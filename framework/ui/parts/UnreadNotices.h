#pragma once

#include <QObject>

namespace framework {

/// How many of the newest notices nobody has looked at yet. GUI thread.
class CUnreadNotices : public QObject
{
    Q_OBJECT

public:
    int Count() const { return m_count; }

    void Set(int count)
    {
        if (count == m_count)
            return;
        m_count = count;
        emit Changed(count);
    }

signals:
    void Changed(int count);

private:
    int m_count = 0;
};

} // namespace framework
