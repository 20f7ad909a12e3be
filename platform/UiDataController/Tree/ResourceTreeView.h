#pragma once

#include <QColor>
#include <QTreeView>

namespace UiDataController {

/// A view of a resource tree: rows with picture, name, number of channels and state, made to be quick with
/// ten thousand of them. Its colours come from the style sheet. GUI thread.
class CResourceTreeView : public QTreeView
{
    Q_OBJECT
    Q_PROPERTY(QColor okColor MEMBER m_okColor)
    Q_PROPERTY(QColor errorColor MEMBER m_errorColor)
    Q_PROPERTY(QColor warnColor MEMBER m_warnColor)
    Q_PROPERTY(QColor idleColor MEMBER m_idleColor)
    Q_PROPERTY(QColor hitColor MEMBER m_hitColor)
    Q_PROPERTY(QColor hitTextColor MEMBER m_hitTextColor)

public:
    explicit CResourceTreeView(QWidget* parent = nullptr);

    /// What is searched for, folded, to be marked in names; empty for nothing.
    void SetMarked(const QString& folded);
    const QString& Marked() const { return m_marked; }

    const QColor& OkColor() const { return m_okColor; }
    const QColor& ErrorColor() const { return m_errorColor; }
    const QColor& WarnColor() const { return m_warnColor; }
    const QColor& IdleColor() const { return m_idleColor; }
    const QColor& HitColor() const { return m_hitColor; }
    const QColor& HitTextColor() const { return m_hitTextColor; }

signals:
    /// Escape was pressed.
    void SignalLeave();
    /// Enter was pressed on a row.
    void SignalEnter(const QModelIndex& index);
    void SignalResized();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QColor m_okColor = Qt::darkGreen;
    QColor m_errorColor = Qt::red;
    QColor m_warnColor = Qt::darkYellow;
    QColor m_idleColor = Qt::gray;
    QColor m_hitColor = Qt::yellow;
    QColor m_hitTextColor = Qt::black;
    QString m_marked;
};

} // namespace UiDataController
