#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace VantorGUIToolkit {

/// What stands where nothing is to be shown: an icon, a title, a sentence that says why, and a button for
/// what to do about it where there is something. Used by empty lists and by pages that are not available.
class CEmptyState : public QWidget
{
    Q_OBJECT

public:
    /// iconName is an icon of the skin.
    CEmptyState(const QString& iconName, const QString& title, const QString& sentence,
                QWidget* parent = nullptr);

    void SetTexts(const QString& title, const QString& sentence);

    /// The button's words; an empty text takes it away.
    void SetAction(const QString& text);

signals:
    void SignalAction();

private:
    QLabel* m_title;
    QLabel* m_sentence;
    QPushButton* m_action;
};

} // namespace VantorGUIToolkit
