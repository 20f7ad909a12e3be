#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/LoadingOverlay.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"
#include "VantorGUIToolkit/Widgets/WarningDlg.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>

namespace VantorGUIToolkit {

CDialogSection::CDialogSection(QWidget* parent)
    : CGallerySection(tr("Dialogs and waiting"), parent),
      m_answer(makeLabel(tr("No answer yet"), TextRole::Hint, this))
{
    m_answer->setObjectName("galleryAnswer");
    AddRow({MakeOpener(tr("Question"), "galleryQuestion", &CDialogSection::AskQuestion),
            MakeOpener(tr("Danger"), "galleryDanger", &CDialogSection::AskDangerous),
            MakeOpener(tr("Information"), "galleryInformation", &CDialogSection::ShowInformation),
            MakeOpener(tr("Error"), "galleryError", &CDialogSection::ShowError),
            MakeOpener(tr("Form"), "galleryForm", &CDialogSection::ShowForm),
            MakeOpener(tr("Job of two seconds"), "galleryJob", &CDialogSection::RunJob)});
    AddRow({m_answer});
}

QWidget* CDialogSection::MakeOpener(const QString& text, const char* name, void (CDialogSection::*open)())
{
    QPushButton* button = makeButton(text, ButtonKind::Normal, this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, open);
    return button;
}

void CDialogSection::AskQuestion()
{
    const int answer = CWarningDlg::CheckMessageInfo(
        tr("The settings have been changed. Do you want to save the new settings?"), tr("Information"), this);
    m_answer->setText(answer == 1 ? tr("Yes") : tr("No"));
}

void CDialogSection::AskDangerous()
{
    const int answer =
        CWarningDlg::CheckDangerousAction(tr("The recordings of this camera are removed for good."),
                                          tr("Remove recordings"), tr("Remove"), this);
    m_answer->setText(answer == 1 ? tr("Yes") : tr("No"));
}

void CDialogSection::ShowInformation()
{
    CWarningDlg::ShowInformation(tr("The settings are saved on all devices."), tr("Information"), this);
}

void CDialogSection::ShowError()
{
    CWarningDlg::ShowError(tr("The storage server is not reached."), tr("Error"), this);
}

void CDialogSection::ShowForm()
{
    CDialog dialog(tr("Add a device"), window());
    auto* form = new CFormGrid(&dialog);
    form->AddRow(tr("Name"), new QLineEdit(form));
    form->AddRow(tr("Password"), new CPasswordEdit(form));
    dialog.ContentLayout()->addWidget(form);
    dialog.setMinimumWidth(400);
    dialog.AddButton(tr("Cancel"), ButtonKind::Normal, QDialog::Rejected);
    dialog.AddButton(tr("Add"), ButtonKind::Primary, QDialog::Accepted);
    m_answer->setText(dialog.exec() == QDialog::Accepted ? tr("Yes") : tr("No"));
}

void CDialogSection::RunJob()
{
    if (!m_overlay) {
        m_overlay = new CLoadingOverlay(window());
        connect(m_overlay, &CLoadingOverlay::SignalLoadingEnd, this,
                [this] { m_answer->setText(tr("The job has ended")); });
    }
    m_answer->setText(tr("The job runs"));
    if (!m_overlay->Run(tr("Processing"), [] { QThread::sleep(2); }))
        m_answer->setText(tr("A job runs already"));
}

} // namespace VantorGUIToolkit
