#pragma once

#include "UiDataController/Tree/Samples/SampleElements.h"

#include <QTimer>
#include <QWidget>

namespace gallery {

/// Resource trees of a small site: by devices, by groups, searched, empty, and one with ten thousand channels
/// whose states change all the while.
class TreePage : public QWidget
{
    Q_OBJECT

public:
    /// The text that the searched tree is searched for; "a" if empty.
    explicit TreePage(const QString& search, QWidget* parent = nullptr);
    /// Ends the trees before their elements, which child widgets would outlive.
    ~TreePage() override;

private:
    void ChangeSomething();

    UiDataController::CSampleElements m_site{UiDataController::siteElements()};
    UiDataController::CSampleElements m_none;
    UiDataController::CSampleElements m_many{UiDataController::manyElements(10000, 16)};
    QTimer m_life;
    int m_beat = 0;
};

} // namespace gallery
