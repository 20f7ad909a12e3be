#pragma once

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace VantorGUIToolkit {

/// The head of a page: its title, a sentence that says what it is for, and the page's buttons at the end
/// side.
class CPageHeader : public QWidget
{
    Q_OBJECT

public:
    CPageHeader(const QString& title, const QString& sentence, QWidget* parent = nullptr);

    void SetTexts(const QString& title, const QString& sentence);

    QPushButton* AddAction(const QString& text, ButtonKind kind);
    /// Any other widget beside the buttons, such as a search edit. The header becomes its parent.
    void AddWidget(QWidget* widget);

private:
    QLabel* m_title;
    QLabel* m_sentence;
    QHBoxLayout* m_actions;
};

} // namespace VantorGUIToolkit
