#include "framework/ui/pages/SettingsPage.h"

#include "VantorGUIToolkit/Toolkit.h"
#include "VantorGUIToolkit/Widgets/FormGrid.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/PathComboBox.h"
#include "framework/ui/pages/LanguageBox.h"
#include "framework/ui/pages/SkinPicker.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kFormWidth = 880;
constexpr int kBoxWidth = 320;
const char* const kDateFormats[] = {"yyyy-MM-dd", "dd.MM.yyyy", "dd/MM/yyyy", "MM/dd/yyyy", "yyyy/MM/dd"};
const char* const kTimeFormats[] = {"HH:mm:ss", "HH:mm", "hh:mm:ss AP", "hh:mm AP"};

void Select(QComboBox& box, const std::string& format)
{
    box.setCurrentIndex(box.findData(QString::fromStdString(format)));
}

std::string Selected(const QComboBox& box)
{
    return box.currentData().toString().toStdString();
}

auto Values(const FrameworkChoices& c)
{
    return std::tie(c.skin, c.language, c.dateFormat, c.timeFormat, c.videoPath, c.picturePath);
}

} // namespace

CSettingsPage::CSettingsPage(CFrameworkSettings& settings, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_skin(new CSkinPicker(this)),
      m_language(new CLanguageBox(this)), m_date(new QComboBox(this)), m_time(new QComboBox(this)),
      m_video(new CPathComboBox(this)), m_picture(new CPathComboBox(this))
{
    setObjectName("settingsPage");
    setSurface(this, Surface::Page);
    auto* header =
        new CPageHeader(tr("Settings"), tr("These hold for the whole client, whoever works with it."), this);
    m_discard = header->AddAction(tr("Discard"), ButtonKind::Normal);
    m_discard->setObjectName("discard");
    m_apply = header->AddAction(tr("Apply"), ButtonKind::Primary);
    m_apply->setObjectName("apply");

    auto* card = new QFrame(this);
    setSurface(card, Surface::Card);
    card->setMaximumWidth(kFormWidth);
    auto* inCard = new QVBoxLayout(card);
    inCard->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    auto* form = new CFormGrid(card);
    BuildAppearance(*form);
    BuildFormats(*form);
    BuildFolders(*form);
    inCard->addWidget(form);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addWidget(header);
    layout->addWidget(card);
    layout->addStretch();
    Show(m_settings.Get());
    Watch();
}

void CSettingsPage::BuildAppearance(CFormGrid& form)
{
    form.AddHeading(tr("Appearance"));
    form.AddRow(tr("Skin"), m_skin);
    m_language->setFixedWidth(kBoxWidth);
    form.AddRow(tr("Language"), m_language,
                tr("Another skin or language restarts the video component; open tabs come back."));
}

void CSettingsPage::BuildFormats(CFormGrid& form)
{
    form.AddHeading(tr("Date and time"));
    const QDateTime sample(QDate(QDate::currentDate().year(), 12, 31), QTime(18, 5, 30));
    m_date->setObjectName("dateFormat");
    m_time->setObjectName("timeFormat");
    for (const char* format : kDateFormats)
        m_date->addItem(toolkit().locale().toString(sample.date(), QString(format)), format);
    for (const char* format : kTimeFormats)
        m_time->addItem(toolkit().locale().toString(sample.time(), QString(format)), format);
    for (QComboBox* box : {m_date, m_time})
        box->setFixedWidth(kBoxWidth);
    form.AddRow(tr("Date"), m_date);
    form.AddRow(tr("Time"), m_time);
}

void CSettingsPage::BuildFolders(CFormGrid& form)
{
    form.AddHeading(tr("Default folders"));
    m_video->setObjectName("videoPath");
    m_picture->setObjectName("picturePath");
    form.AddRow(tr("Clips"), m_video);
    form.AddRow(tr("Pictures"), m_picture);
}

void CSettingsPage::Watch()
{
    connect(m_skin, &CSkinPicker::SkinChosen, this, &CSettingsPage::UpdateButtons);
    for (QComboBox* box : {static_cast<QComboBox*>(m_language), m_date, m_time})
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &CSettingsPage::UpdateButtons);
    for (CPathComboBox* box : {m_video, m_picture})
        connect(box, &CPathComboBox::SignalPathChanged, this, &CSettingsPage::UpdateButtons);
    connect(m_apply, &QPushButton::clicked, this, &CSettingsPage::Apply);
    connect(m_discard, &QPushButton::clicked, this, [this] {
        Show(m_settings.Get());
        UpdateButtons();
    });
    UpdateButtons();
}

void CSettingsPage::Show(const FrameworkChoices& choices)
{
    m_skin->SetSkin(QString::fromStdString(choices.skin));
    m_language->SetLanguage(choices.language);
    Select(*m_date, choices.dateFormat);
    Select(*m_time, choices.timeFormat);
    m_video->setPath(QString::fromStdString(choices.videoPath));
    m_picture->setPath(QString::fromStdString(choices.picturePath));
}

// A format or language that is not on offer shows as no choice and stays as it is.
FrameworkChoices CSettingsPage::Chosen() const
{
    FrameworkChoices choices = m_settings.Get();
    if (!m_skin->Skin().isEmpty())
        choices.skin = m_skin->Skin().toStdString();
    if (m_language->currentIndex() >= 0)
        choices.language = m_language->Language();
    if (m_date->currentIndex() >= 0)
        choices.dateFormat = Selected(*m_date);
    if (m_time->currentIndex() >= 0)
        choices.timeFormat = Selected(*m_time);
    choices.videoPath = m_video->path().toStdString();
    choices.picturePath = m_picture->path().toStdString();
    return choices;
}

void CSettingsPage::Apply()
{
    const FrameworkChoices before = m_settings.Get();
    const FrameworkChoices now = Chosen();
    m_settings.Set(now);
    UpdateButtons();
    emit Applied(before, now);
}

void CSettingsPage::UpdateButtons()
{
    const bool changed = Values(Chosen()) != Values(m_settings.Get());
    m_apply->setEnabled(changed);
    m_discard->setEnabled(changed);
}

} // namespace framework
