#pragma once

#include <QJsonObject>
#include <QObject>
#include <QTimer>

#include <functional>

namespace framework {

class CReport;

/// Tells where things are on the screen, once they have stopped changing: {"event": "layout", "items":
/// {...}}. Besides what the owner adds there are, for each window of the process that is shown, its named
/// widgets as "ui:<object name>" and the entries of an open menu as "menu:<object name>". Only made when
/// there is a report. GUI thread.
class CLayoutReport : public QObject
{
public:
    using Collect = std::function<void(QJsonObject& items)>;

    CLayoutReport(CReport& report, Collect collect);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Tell();

    CReport& m_report;
    const Collect m_collect;
    QTimer m_settle;
    QJsonObject m_last;
};

} // namespace framework
