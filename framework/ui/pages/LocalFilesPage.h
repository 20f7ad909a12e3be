#pragma once

#include "framework/ui/parts/LocalFileSource.h"

#include <QTimer>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace VantorGUIToolkit {
class CBanner;
class CPageHeader;
class CTableView;
} // namespace VantorGUIToolkit

namespace framework {

class CLocalFileChoices;
class CLocalFileFilter;
class CLocalFileModel;
class CResources;

/// The pictures or clips of a camera or group, as the component has catalogued them; opens their files. GUI
/// thread.
class CLocalFilesPage : public QWidget
{
    Q_OBJECT

public:
    CLocalFilesPage(ILocalFileSource& source, CResources& resources, QWidget* parent = nullptr);

    /// Asks the component anew. What is chosen stays chosen.
    void Reload();
    void OnComponentChanged();
    void OnResourcesChanged();
    void OnFormatsChanged();

    /// How many files are listed; -1 while there is no list, as when the component is away.
    int FileCount() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    enum class Opening { File, Folder };

    void SetUpHeader();
    QHBoxLayout* SetUpChoices();
    void SetUpTable();
    void AddShortcuts();
    void Take(AskOutcome outcome, const ILocalFileSource::Files& files);
    void Show(QWidget* state);
    /// Shows that there is no list, and why.
    void ShowReason(const char* iconName, const QString& title, const QString& sentence,
                    const QString& action = {});
    void ShowEmpty();
    void ShowAway();
    void ShowFailure(const QString& sentence);
    void ShowCount();
    void UpdateButtons();
    /// What the user can see to be chosen; the row is chosen also while a reason covers the table.
    const protocol::LocalFileQueryItem* Selected() const;
    const protocol::LocalFileQueryItem* SelectedRow() const;
    void Open(Opening what);
    void OpenPlace(const LocalFilePlace& place, Opening what);

    ILocalFileSource& m_source;
    CResources& m_resources;
    CLocalFileModel* m_model;
    CLocalFileFilter* m_filter;
    VantorGUIToolkit::CPageHeader* m_header;
    QPushButton* m_refresh;
    QPushButton* m_openFolder;
    QPushButton* m_openFile;
    CLocalFileChoices* m_choices;
    QLabel* m_count;
    VantorGUIToolkit::CBanner* m_banner;
    QStackedWidget* m_states;
    VantorGUIToolkit::CTableView* m_table;
    QWidget* m_reason = nullptr; ///< what is shown instead of the table
    QTimer m_slow;               ///< the answer does not come at once
    int m_asked = 0;             ///< only the answer to the latest question counts
};

} // namespace framework
