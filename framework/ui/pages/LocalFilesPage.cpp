#include "framework/ui/pages/LocalFilesPage.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Banner.h"
#include "VantorGUIToolkit/Widgets/EmptyState.h"
#include "VantorGUIToolkit/Widgets/PageHeader.h"
#include "VantorGUIToolkit/Widgets/SearchEdit.h"
#include "VantorGUIToolkit/Widgets/TableView.h"
#include "framework/ui/pages/CameraBox.h"
#include "framework/ui/pages/LocalFileModel.h"
#include "framework/ui/pages/Thumbnails.h"
#include "framework/ui/parts/StateText.h"
#include "framework/ui/parts/WindowTable.h"

#include <QButtonGroup>
#include <QDateTime>
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

constexpr int kWidths[] = {336, 120, 144, 168, 80, 96};
constexpr int kRowHeight = Grid::Huge + Grid::Medium;
constexpr int kCameraWidth = 280;
constexpr int kSearchWidth = 200;
constexpr int kSlowMs = 200; ///< an answer that comes sooner is not worth a flicker

/// Nothing else is given to the desktop, which would run programs: a path comes from the catalogue, which any
/// program of the user can add to.
const char* const kSuffixes[] = {"jpg", "jpeg", "png", "bmp", "avi", "mp4", "mkv", "mov", "ts"};

/// The last second that has a year of four digits.
constexpr std::int64_t kEndOfTime = 253402300799;

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
      m_openFile(m_header->AddAction(tr("Open"), ButtonKind::Primary)), m_kinds(new QButtonGroup(this)),
      m_cameras(new CCameraBox(this)), m_span(new QComboBox(this)),
      m_count(makeLabel({}, TextRole::Hint, this)), m_banner(new CBanner({}, Tone::Warn, this)),
      m_states(new QStackedWidget(this)), m_table(new CTableView(this))
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
    layout->addLayout(MakeChoices());
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

QPushButton* CLocalFilesPage::AddKind(const QString& text, const char* iconName, const char* name,
                                      LocalFileType type)
{
    QPushButton* button = makeButton(text, ButtonKind::Normal, this);
    button->setObjectName(name);
    button->setIcon(icon(iconName));
    button->setCheckable(true);
    m_kinds->addButton(button, int(type));
    return button;
}

QHBoxLayout* CLocalFilesPage::MakeChoices()
{
    auto* search = new CSearchEdit(this);
    search->setObjectName("search");
    search->setPlaceholderText(tr("Search"));
    search->setMaximumWidth(kSearchWidth);
    m_cameras->setObjectName("cameras");
    m_cameras->setAccessibleName(tr("Camera or group"));
    m_cameras->setMinimumWidth(kCameraWidth);
    m_span->setObjectName("span");
    m_span->setAccessibleName(tr("Days"));
    m_span->addItems({tr("Today"), tr("Last 7 days"), tr("Last 30 days"), tr("All days")});
    m_span->setCurrentIndex(int(Span::Week));
    m_count->setObjectName("count");
    m_count->setWordWrap(false);
    auto* kinds = new QHBoxLayout;
    kinds->setSpacing(Grid::Tight);
    kinds->addWidget(AddKind(tr("Pictures"), "picture", "pictures", LocalFileType::Picture));
    kinds->addWidget(AddKind(tr("Clips"), "video", "clips", LocalFileType::Video));
    m_kinds->button(int(LocalFileType::Picture))->setChecked(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(Grid::Medium);
    row->addLayout(kinds);
    row->addWidget(m_cameras);
    row->addWidget(m_span);
    row->addWidget(search);
    row->addStretch(1);
    row->addWidget(m_count);
    connect(m_kinds, &QButtonGroup::idClicked, this, &CLocalFilesPage::Reload);
    connect(m_cameras, &CCameraBox::ChoiceChanged, this, &CLocalFilesPage::Reload);
    connect(m_span, qOverload<int>(&QComboBox::activated), this, &CLocalFilesPage::Reload);
    connect(search, &QLineEdit::textChanged, m_filter, &CLocalFileFilter::SetText);
    connect(search, &QLineEdit::textChanged, this, &CLocalFilesPage::ShowCount);
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
    const std::string before = m_cameras->Chosen().guid;
    m_cameras->Fill(m_resources);
    m_model->SetNames(m_resources);
    if (isVisible() && m_cameras->Chosen().guid != before)
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

LocalFileType CLocalFilesPage::Type() const
{
    return static_cast<LocalFileType>(m_kinds->checkedId());
}

protocol::LocalFileQuery CLocalFilesPage::Query() const
{
    constexpr int kDays[] = {1, 7, 30};
    const CCameraBox::Choice choice = m_cameras->Chosen();
    protocol::LocalFileQuery query;
    query.type = Type();
    query.contition = choice.condition;
    query.guid = choice.guid;
    query.timeBegin.count = 0;
    query.timeEnd.count = kEndOfTime;
    if (m_span->currentIndex() != int(Span::All)) {
        const QDate today = QDate::currentDate();
        query.timeBegin.count =
            today.addDays(1 - kDays[m_span->currentIndex()]).startOfDay().toSecsSinceEpoch();
        query.timeEnd.count = today.endOfDay().toSecsSinceEpoch();
    }
    return query;
}

void CLocalFilesPage::Reload()
{
    m_banner->hide();
    if (m_source.State() != ComponentState::Ready)
        return ShowAway();
    const protocol::LocalFileQuery query = Query();
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
    m_table->setColumnHidden(CLocalFileModel::Length, Type() == LocalFileType::Picture);
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
    if (Type() == LocalFileType::Picture)
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
    const QString form = Type() == LocalFileType::Picture ? tr("Pictures: %1 (%2)") : tr("Clips: %1 (%2)");
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
