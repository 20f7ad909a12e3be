#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QMovie;

namespace VantorGUIToolkit {

/// Covers its parent widget while one job runs on a worker thread: dimmed, with a moving image and a text,
/// and neither mouse nor keys reach what is under it. GUI thread, except for the job.
class CLoadingOverlay : public QWidget
{
    Q_OBJECT

public:
    /// Hidden until Run. The parent owns it and is what it covers.
    explicit CLoadingOverlay(QWidget* parent);
    ~CLoadingOverlay() override;

    /// Shows the text ("Processing") and starts the job on a worker thread. False, with one log line, while
    /// another job runs: jobs do not queue. An exception of the job is logged and ends it. A job cannot be
    /// stopped and goes on when the overlay is destroyed, then without a signal: it must own what it works
    /// on, by value or shared, never a widget.
    bool Run(const QString& text, std::function<void()> job);

    bool IsRunning() const { return m_running != nullptr; }

signals:
    /// The job has ended and the overlay is hidden; what the job wrote can be read. On the GUI thread.
    void SignalLoadingEnd();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Running;

    void Cover();
    void Reveal();
    void End();
    bool Covers(const QObject* receiver) const;

    QWidget* m_panel;
    QLabel* m_text;
    QMovie* m_movie;
    QTimer m_reveal;
    QPointer<QWidget> m_focusBefore;
    std::shared_ptr<Running> m_running;
};

} // namespace VantorGUIToolkit
