#include "framework/ui/pages/ListPage.h"

#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/SearchEdit.h"
#include "VantorGUIToolkit/Widgets/TableView.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace framework {

using namespace VantorGUIToolkit;

namespace {

constexpr int kSearchWidth = 240;
constexpr int kLeastSearchWidth = 120;

} // namespace

CListPage::CListPage(const QString& title, const QString& sentence, const QStringList& headers,
                     QWidget* parent)
    : QWidget(parent), m_header(new CPageHeader(title, sentence, this)), m_search(new CSearchEdit(this)),
      m_table(new CTableView(this)), m_model(new CListModel(headers, this)),
      m_searched(new QSortFilterProxyModel(this)), m_filtered(new QSortFilterProxyModel(this))
{
    setSurface(this, Surface::Page);
    m_search->setObjectName("search");
    m_search->setPlaceholderText(tr("Search"));
    m_search->setMinimumWidth(kLeastSearchWidth);
    m_search->setMaximumWidth(kSearchWidth);
    m_header->AddWidget(m_search);
    SetUpTable();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addWidget(m_header);
    layout->addWidget(m_table, 1);
    connect(m_search, &QLineEdit::textChanged, m_searched, &QSortFilterProxyModel::setFilterFixedString);
}

void CListPage::SetUpTable()
{
    m_searched->setSourceModel(m_model);
    m_searched->setFilterKeyColumn(-1);
    m_searched->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filtered->setSourceModel(m_searched);
    m_filtered->setSortRole(Qt::UserRole);
    m_filtered->setSortLocaleAware(true);
    m_table->setObjectName("table");
    m_table->setModel(m_filtered);
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CListPage::SelectionChanged);
    connect(m_table, &QTableView::doubleClicked, this, [this] { emit Activated(SelectedId()); });
}

void CListPage::SetRows(std::vector<ListRow> rows)
{
    const QString selected = SelectedId();
    m_model->SetRows(std::move(rows));
    Select(selected);
    emit SelectionChanged();
}

QString CListPage::SelectedId() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return {};
    return m_model->Row(m_searched->mapToSource(m_filtered->mapToSource(rows.front())).row()).id;
}

void CListPage::Select(const QString& id)
{
    const int row = m_model->RowOf(id);
    if (row < 0)
        return;
    const QModelIndex shown = m_filtered->mapFromSource(m_searched->mapFromSource(m_model->index(row, 0)));
    if (shown.isValid())
        m_table->selectRow(shown.row());
}

void CListPage::AddFilter(int column, const QString& first, const QStringList& texts)
{
    auto* box = new QComboBox(this);
    box->setObjectName("filter");
    box->setAccessibleName(first);
    box->addItem(first);
    box->addItems(texts);
    m_header->AddWidget(box);
    m_filtered->setFilterKeyColumn(column);
    connect(box, qOverload<int>(&QComboBox::activated), this, [this, box](int index) {
        const QString pattern = QRegularExpression::escape(box->itemText(index));
        m_filtered->setFilterRegularExpression(index == 0 ? QString() : '^' + pattern + '$');
    });
}

} // namespace framework
