#include "framework/ui/pages/LocalFileChoices.h"

#include "VantorGUIToolkit/Icons.h"
#include "VantorGUIToolkit/Widgets/Dress.h"
#include "VantorGUIToolkit/Widgets/SearchEdit.h"
#include "framework/ui/pages/CameraBox.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QPushButton>

namespace framework {

using namespace VantorGUIToolkit;
using protocol::LocalFileType;

namespace {

constexpr int kLeastCameraWidth = 144;
constexpr int kMostCameraWidth = 280;
constexpr int kCameraStretch = 16; ///< it grows first
constexpr int kSearchWidth = 200;

/// The last second that has a year of four digits.
constexpr std::int64_t kEndOfTime = 253402300799;

} // namespace

CLocalFileChoices::CLocalFileChoices(QWidget* parent)
    : QWidget(parent), m_kinds(new QButtonGroup(this)), m_cameras(new CCameraBox(this)),
      m_span(new QComboBox(this))
{
    auto* search = new CSearchEdit(this);
    search->setObjectName("search");
    search->setPlaceholderText(tr("Search"));
    search->setMaximumWidth(kSearchWidth);
    m_cameras->setObjectName("cameras");
    m_cameras->setAccessibleName(tr("Camera or group"));
    m_cameras->setMinimumWidth(kLeastCameraWidth);
    m_cameras->setMaximumWidth(kMostCameraWidth);
    m_span->setObjectName("span");
    m_span->setAccessibleName(tr("Days"));
    m_span->addItems({tr("Today"), tr("Last 7 days"), tr("Last 30 days"), tr("All days")});
    m_span->setCurrentIndex(int(Span::Week));
    auto* kinds = new QHBoxLayout;
    kinds->setSpacing(Grid::Tight);
    kinds->addWidget(AddKind(tr("Pictures"), "picture", "pictures", LocalFileType::Picture));
    kinds->addWidget(AddKind(tr("Clips"), "video", "clips", LocalFileType::Video));
    m_kinds->button(int(LocalFileType::Picture))->setChecked(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(Grid::Medium);
    row->addLayout(kinds);
    row->addWidget(m_cameras, kCameraStretch);
    row->addWidget(m_span);
    row->addWidget(search);
    row->addStretch(1);
    connect(m_kinds, &QButtonGroup::idClicked, this, &CLocalFileChoices::Changed);
    connect(m_cameras, &CCameraBox::ChoiceChanged, this, &CLocalFileChoices::Changed);
    connect(m_span, qOverload<int>(&QComboBox::activated), this, &CLocalFileChoices::Changed);
    connect(search, &QLineEdit::textChanged, this, &CLocalFileChoices::SearchChanged);
}

QPushButton* CLocalFileChoices::AddKind(const QString& text, const char* iconName, const char* name,
                                        LocalFileType type)
{
    QPushButton* button = makeButton(text, ButtonKind::Normal, this);
    button->setObjectName(name);
    button->setIcon(icon(iconName));
    button->setCheckable(true);
    m_kinds->addButton(button, int(type));
    return button;
}

bool CLocalFileChoices::SetResources(const CResources& resources)
{
    const std::string before = m_cameras->Chosen().guid;
    m_cameras->Fill(resources);
    return m_cameras->Chosen().guid != before;
}

LocalFileType CLocalFileChoices::Type() const
{
    return static_cast<LocalFileType>(m_kinds->checkedId());
}

protocol::LocalFileQuery CLocalFileChoices::Query() const
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

} // namespace framework
