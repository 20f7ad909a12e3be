#include "framework/ui/StartDialog.h"

#include "framework/ui/pages/LanguageBox.h"
#include "framework/ui/pages/SkinPicker.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace framework {

using namespace VantorGUIToolkit;

CStartDialog::CStartDialog(const FrameworkChoices& choices)
    : CDialog(tr("Vantor Video Client"), nullptr), m_choices(choices), m_skin(new CSkinPicker(this)),
      m_language(new CLanguageBox(this))
{
    setObjectName("startDialog");
    m_skin->SetSkin(QString::fromStdString(choices.skin));
    m_language->SetLanguage(choices.language);
    QVBoxLayout* content = ContentLayout();
    content->setSpacing(Grid::Medium);
    content->addWidget(makeLabel(tr("Welcome"), TextRole::Title, this));
    content->addWidget(makeLabel(
        tr("Choose how the client looks. Both can be changed later in the settings."), TextRole::Hint, this));
    content->addSpacing(Grid::Small);
    content->addWidget(makeLabel(tr("Skin"), TextRole::Heading, this));
    content->addWidget(m_skin);
    content->addSpacing(Grid::Small);
    content->addWidget(makeLabel(tr("Language"), TextRole::Heading, this));
    content->addWidget(m_language);
    QPushButton* start = AddButton(tr("Start"), ButtonKind::Primary, Accepted);
    start->setObjectName("start");
}

FrameworkChoices CStartDialog::Chosen() const
{
    FrameworkChoices choices = m_choices;
    choices.skin = m_skin->Skin().toStdString();
    choices.language = m_language->Language();
    choices.chosen = true;
    return choices;
}

} // namespace framework
