#include "VantorGUIToolkit/Widgets/FormGrid.h"

#include "VantorGUIToolkit/Restyle.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QGridLayout>
#include <QLabel>

namespace VantorGUIToolkit {

namespace {

enum Column { LabelColumn, FieldColumn };

QString WithoutMnemonic(QString label)
{
    return label.remove(QLatin1Char('&'));
}

} // namespace

CFormGrid::CFormGrid(QWidget* parent) : QWidget(parent), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(Grid::Large);
    m_grid->setVerticalSpacing(Grid::Small);
    m_grid->setColumnStretch(FieldColumn, 1);
}

void CFormGrid::AddRow(const QString& label, QWidget* field, const QString& hint)
{
    QLabel* name = makeLabel(label, TextRole::Plain, this);
    name->setBuddy(field);
    if (field->accessibleName().isEmpty())
        field->setAccessibleName(WithoutMnemonic(label));
    m_grid->addWidget(name, m_grid->rowCount(), LabelColumn, Qt::AlignVCenter);
    m_grid->addWidget(field, m_grid->rowCount() - 1, FieldColumn);
    if (!hint.isEmpty())
        m_grid->addWidget(makeLabel(hint, TextRole::Hint, this), m_grid->rowCount(), FieldColumn);
    AddLineBelow(field);
}

void CFormGrid::AddField(QWidget* field)
{
    m_grid->addWidget(field, m_grid->rowCount(), FieldColumn);
    AddLineBelow(field);
}

void CFormGrid::AddHeading(const QString& text)
{
    QLabel* heading = makeLabel(text, TextRole::Heading, this);
    heading->setContentsMargins(0, m_fields.isEmpty() ? 0 : Grid::Large, 0, 0);
    m_grid->addWidget(heading, m_grid->rowCount(), LabelColumn, 1, 2);
}

void CFormGrid::AddLineBelow(QWidget* field)
{
    QLabel* line = makeLabel({}, TextRole::Error, this);
    line->hide();
    m_grid->addWidget(line, m_grid->rowCount(), FieldColumn);
    m_fields.append(field);
    m_errors.insert(field, line);
}

void CFormGrid::setFieldError(QWidget* field, const QString& text)
{
    QLabel* line = m_errors.value(field);
    if (!line)
        return;
    line->setText(text);
    line->setVisible(!text.isEmpty());
    field->setAccessibleDescription(text);
    markInvalid(field, !text.isEmpty());
}

QString CFormGrid::fieldError(QWidget* field) const
{
    const QLabel* line = m_errors.value(field);
    return line ? line->text() : QString();
}

bool CFormGrid::HasErrors() const
{
    for (const QLabel* line : m_errors)
        if (!line->text().isEmpty())
            return true;
    return false;
}

bool CFormGrid::FocusFirstError()
{
    for (QWidget* field : m_fields) {
        if (fieldError(field).isEmpty())
            continue;
        field->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return false;
}

} // namespace VantorGUIToolkit
