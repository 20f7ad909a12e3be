#include "gallery/TreePage.h"

#include "UiDataController/Tree/ResourceTree.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

using namespace UiDataController;
using namespace VantorGUIToolkit;

namespace {

QWidget* CardOf(const QString& heading, CResourceTree* tree, QWidget* parent)
{
    auto* card = new QFrame(parent);
    setSurface(card, Surface::Card);
    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(Grid::Large, Grid::Large, Grid::Large, Grid::Large);
    column->setSpacing(Grid::Small);
    column->addWidget(makeLabel(heading, TextRole::Heading, card));
    column->addWidget(tree);
    return card;
}

} // namespace

TreePage::TreePage(const QString& search, QWidget* parent) : QWidget(parent)
{
    setObjectName("treePage");
    setWindowTitle(tr("Resource tree"));
    setSurface(this, Surface::Page);
    auto* byDevice = new CResourceTree(m_site, ResourceOrder::ByDevice, this);
    byDevice->SetCurElement("r1/2");
    auto* byGroup = new CResourceTree(m_site, ResourceOrder::ByGroup, this);
    auto* searched = new CResourceTree(m_site, ResourceOrder::ByDevice, this);
    searched->SetSearch(search.isEmpty() ? "a" : search);
    auto* empty = new CResourceTree(m_none, ResourceOrder::ByDevice, this);
    auto* missed = new CResourceTree(m_site, ResourceOrder::ByDevice, this);
    missed->SetSearch("~");
    auto* many = new CResourceTree(m_many, ResourceOrder::ByDevice, this);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    grid->setSpacing(Grid::Large);
    grid->addWidget(CardOf(tr("By devices"), byDevice, this), 0, 0, 2, 1);
    grid->addWidget(CardOf(tr("By groups"), byGroup, this), 0, 1, 2, 1);
    grid->addWidget(CardOf(tr("Searched"), searched, this), 0, 2);
    grid->addWidget(CardOf(tr("Ten thousand"), many, this), 1, 2);
    grid->addWidget(CardOf(tr("Without devices"), empty, this), 0, 3);
    grid->addWidget(CardOf(tr("Without hits"), missed, this), 1, 3);
    m_life.setInterval(500);
    connect(&m_life, &QTimer::timeout, this, &TreePage::ChangeSomething);
    m_life.start();
}

TreePage::~TreePage()
{
    qDeleteAll(findChildren<CResourceTree*>());
}

void TreePage::ChangeSomething()
{
    ElementInfo channel = manyElements(16, 16).at(2 + std::size_t(++m_beat % 16));
    channel.state = m_beat / 16 % 2 == 0 ? ElementState::Recording : ElementState::Online;
    m_many.Apply({{ElementChange::Kind::Change, channel}});
}

} // namespace gallery
