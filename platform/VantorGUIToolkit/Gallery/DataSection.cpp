#include "VantorGUIToolkit/Gallery/Sections.h"
#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/TableView.h"

#include <QListWidget>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTreeWidget>

namespace VantorGUIToolkit {

namespace {

constexpr int kRows = 200;
constexpr int kHeight = 296;

QTreeWidgetItem* AddTreeItem(QTreeWidgetItem* parent, const QString& iconName, const QString& text)
{
    auto* item = new QTreeWidgetItem(parent, {text});
    item->setIcon(0, icon(iconName));
    return item;
}

} // namespace

CDataSection::CDataSection(QWidget* parent) : CGallerySection(tr("Lists and tables"), parent)
{
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName("galleryTabs");
    tabs->setAccessibleName(tr("Lists and tables"));
    tabs->setMinimumHeight(kHeight + 2 * Grid::Huge);
    tabs->addTab(MakeTable(), tr("Table"));
    tabs->addTab(MakeEmptyTable(), tr("Empty table"));
    tabs->addTab(MakeTree(), icon("device"), tr("Tree"));
    tabs->addTab(MakeList(), tr("List"));
    tabs->addTab(new QWidget(tabs), tr("Disabled"));
    tabs->setTabEnabled(tabs->count() - 1, false);
    AddWide(tabs);
    QWidget* tree = MakeTree();
    tree->setFixedHeight(200);
    QWidget* list = MakeList();
    list->setFixedHeight(200);
    AddRow({tree, list});
}

QWidget* CDataSection::MakeTable()
{
    auto* table = new CTableView(this);
    table->setObjectName("galleryTable");
    table->setAccessibleName(tr("Devices"));
    auto* model = new QStandardItemModel(kRows, 4, table);
    model->setHorizontalHeaderLabels({tr("Name"), tr("Address"), tr("Channels"), tr("State")});
    for (int row = 0; row < kRows; ++row) {
        const QString name = row == 2 ? tr("Entrance, second floor, camera at the north gate")
                                      : tr("Recorder %1").arg(row + 1, 3, 10, QLatin1Char('0'));
        model->setItem(row, 0, new QStandardItem(icon("recorder"), name));
        model->setItem(row, 1, new QStandardItem(QString("192.0.2.%1").arg(row + 1)));
        auto* channels = new QStandardItem;
        channels->setData(4 << (row % 5), Qt::DisplayRole);
        model->setItem(row, 2, channels);
        model->setItem(row, 3, new QStandardItem(row % 7 == 3 ? tr("Offline") : tr("Online")));
    }
    table->setModel(model);
    table->sortByColumn(0, Qt::AscendingOrder);
    table->setColumnWidth(0, 200);
    table->setColumnWidth(1, 160);
    table->selectRow(1);
    return table;
}

QWidget* CDataSection::MakeEmptyTable()
{
    auto* table = new CTableView(this);
    table->setAccessibleName(tr("Empty table"));
    auto* model = new QStandardItemModel(0, 2, table);
    model->setHorizontalHeaderLabels({tr("Name"), tr("State")});
    table->setModel(model);
    table->SetEmptyState("search", tr("Nothing found"), tr("No device has a name like this."));
    return table;
}

QWidget* CDataSection::MakeTree()
{
    auto* tree = new QTreeWidget(this);
    tree->setAccessibleName(tr("Devices"));
    tree->setHeaderHidden(true);
    tree->setColumnCount(1);
    for (int group = 1; group <= 3; ++group) {
        auto* building = AddTreeItem(tree->invisibleRootItem(), "home", tr("Building %1").arg(group));
        auto* device = AddTreeItem(building, "recorder", tr("Recorder %1").arg(group));
        for (int camera = 1; camera <= 4; ++camera)
            AddTreeItem(device, "camera", tr("Camera %1").arg(camera))->setDisabled(camera == 3);
        building->setExpanded(group == 1);
        device->setExpanded(true);
    }
    return tree;
}

QWidget* CDataSection::MakeList()
{
    auto* list = new QListWidget(this);
    list->setAccessibleName(tr("Cameras"));
    for (int camera = 1; camera <= 24; ++camera)
        list->addItem(new QListWidgetItem(icon("camera"), tr("Camera %1").arg(camera)));
    list->item(3)->setFlags(Qt::NoItemFlags);
    list->setCurrentRow(1);
    return list;
}

} // namespace VantorGUIToolkit
