#include "VantorGUIToolkit/Gallery/GalleryPage.h"

#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/SearchEdit.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace VantorGUIToolkit {

CGalleryPage::CGalleryPage(QWidget* parent) : QWidget(parent)
{
    setObjectName("galleryPage");
    setWindowTitle(tr("Gallery"));
    setSurface(this, Surface::Page);
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName("galleryScroll");
    scroll->setAccessibleName(tr("Gallery"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    auto* content = new QWidget;
    content->setObjectName("galleryContent");
    setSurface(content, Surface::Page);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    column->setSpacing(Grid::Large);
    auto* header = new CPageHeader(tr("Gallery"), tr("Every widget in every state."), content);
    header->AddWidget(new CSearchEdit(header));
    header->AddAction(tr("Secondary"), ButtonKind::Normal);
    header->AddAction(tr("Primary"), ButtonKind::Primary);
    column->addWidget(header);
    column->addWidget(new CButtonSection(content));
    column->addWidget(new CInputSection(content));
    column->addWidget(new CFormSection(content));
    column->addWidget(new CMessageSection(content));
    column->addWidget(new CDialogSection(content));
    column->addWidget(new CDataSection(content));
    column->addWidget(new CIconSection(content));
    scroll->setWidget(content);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scroll);
}

} // namespace VantorGUIToolkit
