#include "VantorGUIToolkit/Widgets/PathComboBox.h"

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QDir>
#include <QPointer>
#include <QResizeEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolButton>

namespace VantorGUIToolkit {

namespace {

/// Also the width that the style keeps for a combo box's arrow, which the button covers.
constexpr int kButton = Grid::Wide;

/// A path reads from left to right in every language: marks at both ends keep its separators in place.
QString Shown(const QString& path)
{
    const QChar leftToRight(0x200E);
    return leftToRight + path + leftToRight;
}

} // namespace

CPathComboBox::CPathComboBox(QWidget* parent)
    : QComboBox(parent), m_browse(makeIconButton("folder", tr("Browse"), this))
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(16);
    m_browse->setProperty("inline", true);
    m_browse->setFocusPolicy(Qt::NoFocus); // the combo box's own keys do the same
    connect(m_browse, &QToolButton::clicked, this, &CPathComboBox::showPopup);
    connect(this, &QComboBox::currentTextChanged, this,
            [this](const QString& path) { setToolTip(Shown(QDir::toNativeSeparators(path))); });
}

void CPathComboBox::setPath(const QString& path)
{
    clear();
    addItem(path);
}

void CPathComboBox::showPopup()
{
    Browse();
}

void CPathComboBox::Browse()
{
    QFileDialog dialog(window(),
                       m_mode == QFileDialog::Directory ? tr("Choose a folder") : tr("Choose a file"));
    dialog.setObjectName("pathDialog");
    dialog.setFileMode(m_mode);
    dialog.setOption(QFileDialog::ShowDirsOnly, m_mode == QFileDialog::Directory);
    const QFileInfo current(path());
    dialog.setDirectory(current.isDir() ? current.filePath() : current.path());
    const QPointer<CPathComboBox> self(this);
    if (dialog.exec() != QDialog::Accepted || !self || dialog.selectedFiles().isEmpty())
        return;
    const QString chosen = QDir::fromNativeSeparators(dialog.selectedFiles().constFirst());
    if (chosen == path())
        return;
    setPath(chosen);
    emit SignalPathChanged(chosen);
}

QSize CPathComboBox::minimumSizeHint() const
{
    return {160, QComboBox::minimumSizeHint().height()};
}

void CPathComboBox::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = Shown(fontMetrics().elidedText(QDir::toNativeSeparators(path()), Qt::ElideMiddle,
                                                        field.width() - Grid::Small));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void CPathComboBox::resizeEvent(QResizeEvent* event)
{
    QComboBox::resizeEvent(event);
    const QRect place(width() - kButton - Grid::Tight, (height() - kButton) / 2, kButton, kButton);
    m_browse->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void CPathComboBox::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // the page scrolls
}

} // namespace VantorGUIToolkit
