#pragma once

#include "framework/core/FrameworkSettings.h"

#include <QWidget>

class QComboBox;
class QPushButton;

namespace VantorGUIToolkit {
class CFormGrid;
class CPathComboBox;
} // namespace VantorGUIToolkit

namespace framework {

class CLanguageBox;
class CSkinPicker;

/// What the user chooses for the client as a whole. GUI thread.
class CSettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit CSettingsPage(CFrameworkSettings& settings, QWidget* parent = nullptr);

signals:
    /// The choices were changed and kept.
    void Applied(const framework::FrameworkChoices& before, const framework::FrameworkChoices& now);

private:
    void BuildAppearance(VantorGUIToolkit::CFormGrid& form);
    void BuildFormats(VantorGUIToolkit::CFormGrid& form);
    void BuildFolders(VantorGUIToolkit::CFormGrid& form);
    void Watch();
    void Show(const FrameworkChoices& choices);
    FrameworkChoices Chosen() const;
    void Apply();
    void UpdateButtons();

    CFrameworkSettings& m_settings;
    CSkinPicker* m_skin;
    CLanguageBox* m_language;
    QComboBox* m_date;
    QComboBox* m_time;
    VantorGUIToolkit::CPathComboBox* m_video;
    VantorGUIToolkit::CPathComboBox* m_picture;
    QPushButton* m_apply;
    QPushButton* m_discard;
};

} // namespace framework
