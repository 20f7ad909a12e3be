#pragma once

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QFrame>

class QLabel;
class QPushButton;

namespace VantorGUIToolkit {

/// A message that stays on its page as long as it holds, such as that a server is not reached, with a button
/// for what can be done about it where there is something.
class CBanner : public QFrame
{
    Q_OBJECT

public:
    CBanner(const QString& text, Tone tone, QWidget* parent = nullptr);

    void Set(const QString& text, Tone tone);
    QString Text() const;

    /// The button's words; an empty text takes it away.
    void SetAction(const QString& text);

signals:
    void SignalAction();

private:
    QLabel* m_icon;
    QLabel* m_text;
    QPushButton* m_action;
};

} // namespace VantorGUIToolkit
