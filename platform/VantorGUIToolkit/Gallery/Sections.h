#pragma once

#include <QFrame>
#include <QPointer>

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace VantorGUIToolkit {

class CFormGrid;
class CLoadingOverlay;

/// A card of the gallery: a heading, and rows of widgets below it.
class CGallerySection : public QFrame
{
    Q_OBJECT

protected:
    CGallerySection(const QString& heading, QWidget* parent);

    /// A line that says what the next row shows.
    void AddCaption(const QString& text);
    /// Widgets beside each other, at the start side.
    void AddRow(const QList<QWidget*>& widgets);
    /// A widget over the whole width.
    void AddWide(QWidget* widget);

private:
    QVBoxLayout* m_column;
};

/// Buttons, check boxes, switches, menus.
class CButtonSection : public CGallerySection
{
    Q_OBJECT

public:
    explicit CButtonSection(QWidget* parent);

private:
    void AddPushButtons();
    void AddCounter();
    void AddToolButtons();
    void AddMenu();
    void AddChecks();

    int m_clicks = 0;
};

/// Everything that takes a value.
class CInputSection : public CGallerySection
{
    Q_OBJECT

public:
    explicit CInputSection(QWidget* parent);

private:
    void AddLineEdits();
    void AddSpecialEdits();
    void AddCombos();
    void AddNumbers();
    void AddTexts();
};

/// A form with headings, hints and errors.
class CFormSection : public CGallerySection
{
    Q_OBJECT

public:
    explicit CFormSection(QWidget* parent);

private:
    void Check();

    CFormGrid* m_form;
    QLineEdit* m_address;
    QLineEdit* m_port;
};

/// Texts, badges, banners, notices, empty states.
class CMessageSection : public CGallerySection
{
    Q_OBJECT

public:
    explicit CMessageSection(QWidget* parent);

private:
    void AddTexts();
    void AddBanners();
    void AddNotices();
    void AddEmptyState();
};

/// Dialogs and the loading overlay, opened by buttons.
class CDialogSection : public CGallerySection
{
    Q_OBJECT

public:
    explicit CDialogSection(QWidget* parent);

private:
    QWidget* MakeOpener(const QString& text, const char* name, void (CDialogSection::*open)());
    void AskQuestion();
    void AskDangerous();
    void ShowInformation();
    void ShowError();
    void ShowForm();
    void RunJob();

    QLabel* m_answer;
    QPointer<CLoadingOverlay> m_overlay; ///< over the whole window, from the first job on
};

/// Tables, trees, lists, tabs.
class CDataSection : public CGallerySection
{
    Q_OBJECT

public:
    explicit CDataSection(QWidget* parent);

private:
    QWidget* MakeTable();
    QWidget* MakeEmptyTable();
    QWidget* MakeTree();
    QWidget* MakeList();
};

/// Every icon of the skin, in its states.
class CIconSection : public CGallerySection
{
    Q_OBJECT

public:
    explicit CIconSection(QWidget* parent);
};

} // namespace VantorGUIToolkit
