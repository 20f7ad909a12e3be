#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Restyle.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/PasswordEdit.h"
#include "VantorGUIToolkit/Widgets/PathComboBox.h"
#include "VantorGUIToolkit/Widgets/SearchEdit.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSlider>
#include <QSpinBox>

namespace VantorGUIToolkit {

namespace {

template<typename W>
W* Named(W* widget, const QString& name)
{
    widget->setAccessibleName(name);
    return widget;
}

QLineEdit* MakeEdit(const QString& text, const QString& name, QWidget* parent)
{
    QLineEdit* edit = Named(new QLineEdit(text, parent), name);
    edit->setCursorPosition(0);
    return edit;
}

} // namespace

CInputSection::CInputSection(QWidget* parent) : CGallerySection(tr("Inputs"), parent)
{
    AddLineEdits();
    AddSpecialEdits();
    AddCombos();
    AddNumbers();
    AddTexts();
}

void CInputSection::AddLineEdits()
{
    QLineEdit* name = MakeEdit({}, tr("Name"), this);
    name->setObjectName("galleryNameEdit");
    name->setPlaceholderText(tr("Name"));
    QLineEdit* readOnly = MakeEdit(tr("Read-only"), tr("Read-only"), this);
    readOnly->setReadOnly(true);
    QLineEdit* disabled = MakeEdit(tr("Disabled"), tr("Disabled"), this);
    disabled->setEnabled(false);
    QLineEdit* invalid = MakeEdit("192.0.2.999", tr("Invalid"), this);
    markInvalid(invalid, true);
    AddCaption(tr("Line edits: empty, filled, read-only, disabled, invalid"));
    AddRow({name, MakeEdit(tr("Entrance, second floor, camera at the north gate"), tr("Filled"), this),
            readOnly, disabled, invalid});
}

void CInputSection::AddSpecialEdits()
{
    auto* password = Named(new CPasswordEdit(this), tr("Password"));
    password->setObjectName("galleryPasswordEdit");
    password->setText("correct horse");
    auto* search = new CSearchEdit(this);
    search->setObjectName("gallerySearchEdit");
    search->setText(tr("Gate"));
    auto* path = Named(new CPathComboBox(this), tr("Folder for recordings"));
    path->setObjectName("galleryPathCombo");
    path->setMinimumWidth(280);
    path->setPath(QDir::homePath() + "/recordings/building-7/north-wing/second-floor/2030/archive");
    AddCaption(tr("Password, search and path"));
    AddRow({password, search, path});
}

void CInputSection::AddCombos()
{
    auto* longList = Named(new QComboBox(this), tr("Channel"));
    longList->setObjectName("galleryCombo");
    for (int channel = 1; channel <= 64; ++channel)
        longList->addItem(tr("Camera %1").arg(channel, 2, 10, QLatin1Char('0')));
    auto* editable = Named(new QComboBox(this), tr("Editable"));
    editable->setEditable(true);
    editable->addItems({tr("Editable"), tr("Second"), tr("Third")});
    auto* disabled = Named(new QComboBox(this), tr("Disabled"));
    disabled->addItem(tr("Disabled"));
    disabled->setEnabled(false);
    auto* invalid = Named(new QComboBox(this), tr("Invalid"));
    invalid->addItem(tr("Invalid"));
    markInvalid(invalid, true);
    AddCaption(tr("Combo boxes: with a long list, editable, disabled, invalid"));
    AddRow({longList, editable, disabled, invalid});
}

void CInputSection::AddNumbers()
{
    auto* number = Named(new QSpinBox(this), tr("Number"));
    number->setRange(0, 65535);
    number->setValue(8000);
    auto* disabled = Named(new QSpinBox(this), tr("Disabled"));
    disabled->setEnabled(false);
    auto* fraction = Named(new QDoubleSpinBox(this), tr("Fraction"));
    fraction->setSuffix(" s");
    fraction->setValue(2.5);
    const QDateTime moment(QDate(2030, 5, 17), QTime(9, 41));
    auto* date = Named(new QDateEdit(moment.date(), this), tr("Date"));
    date->setCalendarPopup(true);
    auto* time = Named(new QTimeEdit(moment.time(), this), tr("Time"));
    AddCaption(tr("Numbers, dates and times"));
    AddRow({number, disabled, fraction, date, time});
    auto* slider = Named(new QSlider(Qt::Horizontal, this), tr("Volume"));
    slider->setMinimumWidth(160);
    slider->setValue(40);
    auto* disabledSlider = Named(new QSlider(Qt::Horizontal, this), tr("Disabled"));
    disabledSlider->setEnabled(false);
    auto* progress = Named(new QProgressBar(this), tr("Progress"));
    progress->setMinimumWidth(160);
    progress->setValue(65);
    auto* vertical = Named(new QSlider(Qt::Vertical, this), tr("Volume"));
    vertical->setFixedHeight(80);
    vertical->setValue(40);
    AddRow({slider, disabledSlider, progress, vertical});
}

void CInputSection::AddTexts()
{
    auto* text = Named(new QPlainTextEdit(this), tr("Remarks"));
    text->setObjectName("galleryText");
    text->setFixedHeight(80);
    text->setTabChangesFocus(true);
    text->setPlainText(tr("A text of several lines.\nIt scrolls when it is too long for its field."));
    auto* disabled = Named(new QPlainTextEdit(this), tr("Disabled"));
    disabled->setFixedHeight(80);
    disabled->setPlainText(tr("Disabled"));
    disabled->setEnabled(false);
    AddCaption(tr("Texts of several lines"));
    AddRow({text, disabled});
}

} // namespace VantorGUIToolkit
