#include "framework/ui/pages/LocalFilesPage.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Banner.h"
#include "VantorGUIToolkit/Widgets/EmptyState.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/TableView.h"
#include "framework/ui/pages/LocalFileChoices.h"
#include "framework/ui/pages/LocalFileModel.h"
#include "framework/ui/pages/Thumbnails.h"
#include "framework/ui/parts/StateText.h"
#include "framework/ui/parts/WindowTable.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QUrl>

namespace framework {

using namespace VantorGUIToolkit;
using protocol::LocalFileType;

namespace {

constexpr int kWidths[] = {336, 120, 144, 168, 80, 120};
constexpr int kRowHeight = Grid::Huge + Grid::Medium;
constexpr int kLeastCountWidth = 160; ///< so that nothing moves when it comes and goes
constexpr int kSlowMs = 200;          ///< an answer that comes sooner is not worth a flicker

/// Nothing else is given to the desktop, which would run programs: a path comes from the catalogue, which any
/// program of the user can add to.
const char* const kSuffixes[] = {"jpg", "jpeg", "png", "bmp", "avi", "mp4", "mkv", "mov", "ts"};

bool IsPictureOrClip(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return std::any_of(std::begin(kSuffixes), std::end(kSuffixes),
                       [&](const char* known) { return suffix == known; });
}

} // namespace

CLocalFilesPage::CLocalFilesPage(ILocalFileSource& source, CResources& resources, QWidget* parent)
    : QWidget(parent), m_source(source), m_resources(resources), m_model(new CLocalFileModel(this)),
      m_filter(new CLocalFileFilter(m_model)),
      m_header(new CPageHeader(
          TitleOf("LocalFiles"),
          tr("Pictures and clips on this computer, as the component has catalogued them."), this)),
      m_refresh(m_header->AddAction(tr("Refresh"), ButtonKind::Normal)),
      m_openFolder(m_header->AddAction(tr("Show folder"), ButtonKind::Normal)),
      m_openFile(m_header->AddAction(tr("Open"), ButtonKind::Primary)),
      m_choices(new CLocalFileChoices(this)), m_count(makeLabel({}, TextRole::Hint, this)),
      m_banner(new CBanner({}, Tone::Warn, this)), m_states(new QStackedWidget(this)),
      m_table(new CTableView(this))
{
    setObjectName("localFilesPage");
    setSurface(this, Surface::Page);
    SetUpHeader();
    SetUpTable();
    m_banner->setObjectName("banner");
    m_banner->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Grid::Wide, Grid::Wide, Grid::Wide, Grid::Wide);
    layout->setSpacing(Grid::Large);
    layout->addWidget(m_header);
    layout->addLayout(SetUpChoices());
    layout->addWidget(m_banner);
    layout->addWidget(m_states, 1);
    m_states->addWidget(m_table);
    AddShortcuts();
    m_slow.setSingleShot(true);
    m_slow.setInterval(kSlowMs);
    connect(&m_slow, &QTimer::timeout, this,
            [this] { ShowReason("refresh", tr("Loading"), tr("The component is asked for its records.")); });
    OnResourcesChanged();
}

void CLocalFilesPage::SetUpHeader()
{
    m_refresh->setObjectName("refresh");
    m_refresh->setIcon(icon("refresh"));
    m_refresh->setToolTip(QKeySequence(Qt::Key_F5).toString(QKeySequence::NativeText));
    connect(m_refresh, &QPushButton::clicked, this, &CLocalFilesPage::Reload);
    m_openFile->setObjectName("openFile");
    m_openFolder->setObjectName("openFolder");
    m_openFolder->setIcon(icon("folder"));
    connect(m_openFile, &QPushButton::clicked, this, [this] { Open(Opening::File); });
    connect(m_openFolder, &QPushButton::clicked, this, [this] { Open(Opening::Folder); });
}

QHBoxLayout* CLocalFilesPage::SetUpChoices()
{
    m_count->setObjectName("count");
    m_count->setWordWrap(false);
    m_count->setMinimumWidth(kLeastCountWidth);
    m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_choices, &CLocalFileChoices::Changed, this, &CLocalFilesPage::Reload);
    connect(m_choices, &CLocalFileChoices::SearchChanged, m_filter, &CLocalFileFilter::SetText);
    connect(m_choices, &CLocalFileChoices::SearchChanged, this, &CLocalFilesPage::ShowCount);
    auto* row = new QHBoxLayout;
    row->setSpacing(Grid::Medium);
    row->addWidget(m_choices, 1);
    row->addWidget(m_count);
    return row;
}

void CLocalFilesPage::SetUpTable()
{
    m_table->setObjectName("localFilesTable");
    m_table->setModel(m_filter);
    m_table->setTextElideMode(Qt::ElideMiddle); // of paths and file names both ends tell something
    for (int column = 0; column < int(std::size(kWidths)); ++column)
        m_table->setColumnWidth(column, kWidths[column]);
    m_table->sortByColumn(CLocalFileModel::Time, Qt::DescendingOrder);
    m_table->setIconSize(CThumbnails::kSize);
    m_table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    connect(m_model, &CLocalFileModel::PictureLoaded, m_table->viewport(), qOverload<>(&QWidget::update));
    m_table->SetEmptyState("search", tr("Nothing found"), tr("No file has this text."));
    connect(m_table, &QTableView::doubleClicked, this, [this] { Open(Opening::File); });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CLocalFilesPage::UpdateButtons);
}

void CLocalFilesPage::AddShortcuts()
{
    auto* refresh = new QShortcut(Qt::Key_F5, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(refresh, &QShortcut::activated, this, &CLocalFilesPage::Reload);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* open = new QShortcut(key, m_table, nullptr, nullptr, Qt::WidgetShortcut);
        connect(open, &QShortcut::activated, this, [this] { Open(Opening::File); });
    }
}

void CLocalFilesPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    Reload();
}

void CLocalFilesPage::OnComponentChanged()
{
    if (m_source.State() == ComponentState::Ready)
        Reload();
    else
        ShowAway();
}

void CLocalFilesPage::OnResourcesChanged()
{
    const bool isOther = m_choices->SetResources(m_resources);
    m_model->SetNames(m_resources);
    if (isVisible() && isOther)
        Reload();
}

void CLocalFilesPage::OnFormatsChanged()
{
    m_model->ShowTimesAnew();
}

int CLocalFilesPage::FileCount() const
{
    return m_states->currentWidget() == m_table ? m_model->rowCount() : -1;
}

void CLocalFilesPage::Reload()
{
    m_banner->hide();
    if (m_source.State() != ComponentState::Ready)
        return ShowAway();
    const protocol::LocalFileQuery query = m_choices->Query();
    if (query.guid.empty())
        return ShowReason("camera", tr("No camera yet"), tr("Add a device, or enter a camera's identifier."));
    if (!m_slow.isActive())
        m_slow.start();
    m_source.Query(query, [page = QPointer(this), asked = ++m_asked](AskOutcome outcome, const auto& files) {
        if (page && page->m_asked == asked)
            page->Take(outcome, files);
    });
}

void CLocalFilesPage::Take(AskOutcome outcome, const ILocalFileSource::Files& files)
{
    m_slow.stop();
    switch (outcome) {
    case AskOutcome::Answered:
        break;
    case AskOutcome::NotThere:
        return ShowAway();
    case AskOutcome::NoAnswer:
        return ShowFailure(tr("The component did not answer in time."));
    case AskOutcome::Refused:
        return ShowFailure(tr("The component answered with an error."));
    case AskOutcome::Unreadable:
        return ShowFailure(tr("The answer of the component cannot be read."));
    }
    const auto* selected = SelectedRow();
    const std::string chosen = selected ? selected->fileGuid : std::string();
    m_table->setColumnHidden(CLocalFileModel::Length, m_choices->Type() == LocalFileType::Picture);
    m_model->SetFiles(files);
    if (files->empty())
        return ShowEmpty();
    Show(m_table);
    const int row = m_model->RowOf(chosen);
    if (row >= 0)
        m_table->selectRow(m_filter->mapFromSource(m_model->index(row, 0)).row());
    UpdateButtons();
}

void CLocalFilesPage::ShowEmpty()
{
    const QString sentence = tr("Nothing was catalogued for this camera or group in these days.");
    if (m_choices->Type() == LocalFileType::Picture)
        ShowReason("picture", tr("No pictures"), sentence);
    else
        ShowReason("video", tr("No clips"), sentence);
}

void CLocalFilesPage::Show(QWidget* state)
{
    m_states->setCurrentWidget(state);
    if (m_reason && state != m_reason) {
        m_reason->deleteLater();
        m_reason = nullptr;
    }
    ShowCount();
    UpdateButtons();
}

void CLocalFilesPage::ShowReason(const char* iconName, const QString& title, const QString& sentence,
                                 const QString& action)
{
    m_slow.stop();
    Show(m_table);
    auto* reason = new CEmptyState(iconName, title, sentence, m_states);
    reason->setObjectName("reason");
    setSurface(reason, Surface::Card);
    reason->SetAction(action);
    connect(reason, &CEmptyState::SignalAction, this, &CLocalFilesPage::Reload);
    m_reason = reason;
    m_states->addWidget(reason);
    Show(reason);
}

void CLocalFilesPage::ShowAway()
{
    ++m_asked;
    m_banner->hide();
    const ComponentState state = m_source.State();
    ShowReason("power", TextOf(state), SentenceOf(state));
}

void CLocalFilesPage::ShowFailure(const QString& sentence)
{
    ShowReason("error", tr("The list cannot be shown"), sentence, tr("Try again"));
}

void CLocalFilesPage::ShowCount()
{
    const QLocale locale = QLocale();
    const QString form =
        m_choices->Type() == LocalFileType::Picture ? tr("Pictures: %1 (%2)") : tr("Clips: %1 (%2)");
    const QString number =
        m_filter->rowCount() == m_model->rowCount()
            ? locale.toString(m_model->rowCount())
            : tr("%1 of %2").arg(locale.toString(m_filter->rowCount()), locale.toString(m_model->rowCount()));
    m_count->setText(FileCount() > 0 ? form.arg(number, KiBText(m_model->KiB())) : QString());
}

void CLocalFilesPage::UpdateButtons()
{
    m_openFile->setEnabled(Selected());
    m_openFolder->setEnabled(Selected());
}

const protocol::LocalFileQueryItem* CLocalFilesPage::Selected() const
{
    return m_states->currentWidget() == m_table ? SelectedRow() : nullptr;
}

const protocol::LocalFileQueryItem* CLocalFilesPage::SelectedRow() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return nullptr;
    return &m_model->File(m_filter->mapToSource(rows.front()).row());
}

void CLocalFilesPage::Open(Opening what)
{
    const auto* file = Selected();
    if (!file)
        return;
    m_banner->hide();
    protocol::LocalFile asked;
    asked.type = file->type;
    asked.guid = file->fileGuid;
    m_source.Resolve(asked, [page = QPointer(this), what](const LocalFilePlace& place) {
        if (page)
            page->OpenPlace(place, what);
    });
}

void CLocalFilesPage::OpenPlace(const LocalFilePlace& place, Opening what)
{
    QString problem;
    if (place.outcome != AskOutcome::Answered)
        problem = tr("The component did not tell where the file is.");
    else if (place.path.isEmpty())
        problem = tr("The file is no longer in the catalogue.");
    else if (!place.exists)
        problem = tr("The file is gone: %1").arg(PathText(place.path));
    else {
        const bool isFile = what == Opening::File && IsPictureOrClip(place.path);
        const QString target = isFile ? place.path : QFileInfo(place.path).path();
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(target)))
            problem = tr("No program opens %1").arg(PathText(target));
    }
    if (problem.isEmpty())
        return;
    m_banner->Set(problem, Tone::Warn);
    m_banner->show();
}

} // namespace framework
