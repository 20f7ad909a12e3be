#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace VantorGUIToolkit {

CGallerySection::CGallerySection(const QString& heading, QWidget* parent)
    : QFrame(parent), m_column(new QVBoxLayout(this))
{
    setSurface(this, Surface::Card);
    m_column->setContentsMargins(Grid::Wide, Grid::Large, Grid::Wide, Grid::Wide);
    m_column->setSpacing(Grid::Small);
    m_column->addWidget(makeLabel(heading, TextRole::Heading, this));
}

void CGallerySection::AddCaption(const QString& text)
{
    m_column->addSpacing(Grid::Small);
    m_column->addWidget(makeLabel(text, TextRole::Hint, this));
}

void CGallerySection::AddRow(const QList<QWidget*>& widgets)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Grid::Medium);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    row->addStretch(1);
    m_column->addLayout(row);
}

void CGallerySection::AddWide(QWidget* widget)
{
    m_column->addWidget(widget);
}

} // namespace VantorGUIToolkit
