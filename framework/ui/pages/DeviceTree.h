#pragma once

#include "UiDataController/Model/Element.h"

#include <QTreeWidget>

namespace framework {

/// Devices with their channels and states. GUI thread, which is also that of the source's changes.
class CDeviceTree : public QTreeWidget, private UiDataController::IElementObserver
{
    Q_OBJECT

public:
    /// The source outlives the tree.
    CDeviceTree(UiDataController::IElementSource& source, QWidget* parent);
    ~CDeviceTree() override;

    /// The element that is chosen; empty for none.
    QString Selected() const;
    void Select(const QString& id);
    /// Leaves what has the text in its name.
    void SetSearch(const QString& text);

signals:
    void SelectionChanged();

private:
    void OnElements(std::uint64_t version, const UiDataController::ElementChanges& changes) override;
    void Fill();
    void Show(QTreeWidgetItem* item, const UiDataController::ElementInfo& element);
    void Hide();

    UiDataController::IElementSource& m_source;
    QString m_search;
};

} // namespace framework
