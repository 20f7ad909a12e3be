#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace framework {

/// A quiet page in the middle of a tab: an icon, a heading, a sentence, and a button or a sign of work.
class CStatePage : public QWidget
{
    Q_OBJECT

public:
    explicit CStatePage(QWidget* parent = nullptr);

    /// Shows that something is being waited for.
    void ShowBusy(const QString& heading, const QString& sentence);
    /// Shows a reason. Without a text there is no button.
    void ShowReason(const QString& icon, const QString& heading, const QString& sentence,
                    const QString& button = {});

signals:
    void ButtonPressed();

private:
    void SetTexts(const QString& heading, const QString& sentence);

    QLabel* m_icon;
    QProgressBar* m_busy;
    QLabel* m_heading;
    QLabel* m_sentence;
    QPushButton* m_button;
};

} // namespace framework
