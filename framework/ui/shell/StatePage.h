#pragma once

#include <QWidget>

class QLabel;
class QStackedLayout;

namespace VantorGUIToolkit {
class CEmptyState;
}

namespace framework {

/// A quiet page in the middle of a tab: a sign of work, or a reason with a button. GUI thread.
class CStatePage : public QWidget
{
    Q_OBJECT

public:
    explicit CStatePage(QWidget* parent = nullptr);

    /// Shows that something is being waited for.
    void ShowBusy(const QString& heading, const QString& sentence);
    /// Shows why there is nothing else; button: what the user can do about it.
    void ShowReason(const QString& icon, const QString& heading, const QString& sentence,
                    const QString& button);

signals:
    void ButtonPressed();

private:
    QStackedLayout* m_stack;
    QWidget* m_busy;
    QLabel* m_heading;
    QLabel* m_sentence;
    VantorGUIToolkit::CEmptyState* m_reason = nullptr;
};

} // namespace framework
