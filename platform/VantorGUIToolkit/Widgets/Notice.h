#pragma once

#include "VantorGUIToolkit/Widgets/Dress.h"

#include <QFrame>

class QTimer;

namespace VantorGUIToolkit {

using NoticeTone = Tone;

/// The result of an action, shown for some seconds at the bottom right of the screen without asking for
/// anything: it never takes the focus, and it stays while the mouse is on it. Several stand above each other,
/// the newest at the bottom; see CNoticeStack for how many. GUI thread.
class CNotice : public QFrame
{
    Q_OBJECT

public:
    /// Shows a text (plain, cut after kMaxText characters) on the screen where the anchor is, on the primary
    /// screen for none. The anchor is not kept.
    static void Show(const QString& text, NoticeTone tone, QWidget* anchor);

    static constexpr int kMaxText = 600;

    /// How long a text stays, in milliseconds: longer texts longer.
    static int LifetimeOf(const QString& text);

    QString Text() const { return accessibleName(); }

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    CNotice(const QString& text, NoticeTone tone);

    QTimer* m_lifetime;
    int m_remaining; ///< milliseconds, kept while the mouse is on the notice
};

} // namespace VantorGUIToolkit
