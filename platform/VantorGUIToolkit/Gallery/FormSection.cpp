#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

namespace VantorGUIToolkit {

CFormSection::CFormSection(QWidget* parent)
    : CGallerySection(tr("Form"), parent), m_form(new CFormGrid(this)), m_address(new QLineEdit(m_form)),
      m_port(new QLineEdit(m_form))
{
    m_address->setObjectName("galleryAddressEdit");
    m_port->setObjectName("galleryPortEdit");
    m_port->setText("70000");
    m_form->AddHeading(tr("Connection"));
    m_form->AddRow(tr("&Address"), m_address, tr("Name or address of the device in your network."));
    m_form->AddRow(tr("&Port"), m_port);
    m_form->AddRow(tr("Pass&word"), new CPasswordEdit(m_form));
    m_form->AddField(new QCheckBox(tr("Connect when the program starts"), m_form));
    m_form->setMaximumWidth(560);
    AddWide(m_form);
    QPushButton* check = makeButton(tr("Check"), ButtonKind::Normal, this);
    check->setObjectName("galleryCheckButton");
    connect(check, &QPushButton::clicked, this, &CFormSection::Check);
    AddRow({check});
    m_form->setFieldError(m_port, tr("The port is a number from 1 to 65535."));
}

void CFormSection::Check()
{
    bool isNumber = false;
    const int port = m_port->text().toInt(&isNumber);
    const bool portFits = isNumber && port >= 1 && port <= 65535;
    m_form->setFieldError(m_address, m_address->text().isEmpty() ? tr("Enter an address.") : QString());
    m_form->setFieldError(m_port, portFits ? QString() : tr("The port is a number from 1 to 65535."));
    m_form->FocusFirstError();
}

} // namespace VantorGUIToolkit
